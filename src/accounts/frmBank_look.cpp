// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounts/frmBank.h"
#include "platform/forms/look.h"
#include "shared/conventions.h"

#include <QGridLayout>
#include <QVBoxLayout>
#include <QWidget>

namespace behaviours = forms::behaviours;

namespace {

constexpr int LongestEntry = 254;
constexpr int LongestType = 255;
constexpr int EntryWidth = 60; // characters
constexpr int ShortWidth = 18;
constexpr int LeastWidth = 12;

// No frame, which a screen reader would tell of.
QWidget* separator(frmBank& form)
{
    auto* line = new QWidget(form.canvas());
    line->setObjectName("lnSeperator");
    line->setFixedHeight(1);
    line->setAutoFillBackground(true);
    line->setPalette(forms::look::colours().line);
    return line;
}

// What there is to step through takes the place of the request to enter something.
QLayout* stepsOrRequest(frmBank& form)
{
    auto* steps = new QHBoxLayout;
    steps->setSpacing(forms::look::grid(1));
    steps->addStretch();
    for (const forms::CommandButton* step : {&form.cmdPrevious, &form.cmdNext}) {
        forms::look::keepPlace(*step);
        steps->addWidget(step->widget());
    }
    steps->addStretch();
    auto* place = new QGridLayout;
    place->addLayout(steps, 0, 0);
    place->addWidget(form.lblState.widget(), 0, 0, Qt::AlignCenter);
    form.lblState.setRole(forms::TextRole::Instruction);
    return place;
}

} // namespace

void frmBank::look()
{
    setTitle(conventions::Title);
    lblMainHead.setCaption("Financial Account Information");
    lblState.setCaption("Please Enter The Account Information Above ");
    lblSelIn.setCaption(conventions::HelpHint);
    lblCopyright.setCaption(conventions::Footer);
    lookOfEntries();
    lookOfButtons();
    answer();
    layOut();
}

void frmBank::lookOfEntries()
{
    forms::look::configure({
        {txtName, 0, " Enter Your New Financial Institution ", 40},
        {txtAddress, 1, " Enter Your Financial Institution's Address ", LongestEntry},
        {txtCity, 2, " Enter Your Financial Institution's City ", LongestEntry},
        {cmbState, 3, " Select Or Enter Your Financial Institution's State "},
        {txtPhone1, 4, " Enter The Area Code Of The Financial Institution ", 3},
        {txtPhone2, 5, " Enter The Phone Number Prefix Of The Financial Institution ", 3},
        {txtPhone3, 6, " Enter The 4 Digit Number Of The Financial Institution ", 4},
        {cmbType, 7, " Select Or Enter An Account Type "},
        {txtAccount, 8, " Enter The Account Number ", LongestEntry},
        {txtRoute, 9, " Enter The Routing Number ", LongestEntry},
        {txtBalance, 10, " Enter The Account's Available Balance In Dollars and Cents ", LongestEntry},
        {txtDate, 11, " Enter The Balance Date ", LongestEntry},
        {picDate, -1, " This Icon Opens A Calendar So A Date Can Be Selected "},
    });
    lblHead[1].setCaption("Address");
    lblHead[2].setCaption("Phone Number");
    lblHead[3].setCaption("Account Number");
    lblHead[4].setCaption("Routing Number");
    lblHead[5].setCaption("Available Balance");
    lblHead[6].setCaption("Account Type");
    lblHead[7].setCaption("City");
    lblSubhead[4].setCaption("State");
    lblChoice[6].setCaption("As Of");
    txtName.setText(" Enter Financial Institution ");
    txtName.setSpokenName("Financial Institution"); // which no label says
    txtName.setTextColour(forms::look::colours().link);
    for (forms::TextBox* box : {&txtName, &txtBalance, &txtDate})
        box->setAlignment(forms::Alignment::Centre);
    cmbType.addItems({"Checking", "Other", "Savings"});
    picDate.setPicture(":/pictures/calendar.png", "Calendar");
}

void frmBank::lookOfButtons()
{
    forms::look::configure({
        {cmdPrevious, 13, "<= &Previous", " Click Here To Go To The Previous Financial Account ", nullptr},
        {cmdNext, 14, "&Next =>", " Click Here To Go To The Next Financial Account ", nullptr},
        {cmdBack, 15, "&Cancel", " Click Here To Return To Previous Window ", "cancel"},
        {cmdState, 16, "&Add New Account", "", "plus"}, // until the menu says what it does
    });
    cmdState.setDefault(true);
}

// The state box and the balance answer by themselves.
void frmBank::answer()
{
    for (forms::TextEntry* box : std::initializer_list<forms::TextEntry*>{
             &txtName, &txtAddress, &txtCity, &txtPhone1, &txtPhone2, &txtPhone3, &cmbType, &txtAccount, &txtRoute})
        behaviours::selectOnFocus(*box);
    cmbState.Click = [this] { state_.hop(); };
    txtPhone1.KeyUp = [this](int&) { phone_KeyUp(txtPhone1, txtPhone2); };
    txtPhone2.KeyUp = [this](int&) { phone_KeyUp(txtPhone2, txtPhone3); };
    txtPhone3.KeyUp = [this](int&) { phone_KeyUp(txtPhone3, cmbType); };
    behaviours::lengthCap(cmbType, LongestType);
    txtAccount.KeyPress = [this](int& KeyAscii) { txtAccount_KeyPress(KeyAscii); };
    txtDate.GotFocus = [this] { show_Balance_Date_Calendar(); };
    picDate.Click = [this] { show_Balance_Date_Calendar(); };
    cmdNext.Click = [this] { cmdNext_Click(); };
    cmdPrevious.Click = [this] { cmdPrevious_Click(); };
    cmdState.Click = [this] { cmdState_Click(); };
    cmdBack.Click = [this] { cmdBack_Click(); };
}

void frmBank::layOut()
{
    txtBalance.setWidthInCharacters(ShortWidth, LeastWidth);
    txtDate.setWidthInCharacters(ShortWidth, LeastWidth);
    forms::look::FieldRows rows;
    rows.wideRow(lblHead[1], {&txtAddress});
    rows.wideRow(lblHead[7], {&txtCity, &lblSubhead[4], &cmbState});
    address::addPhone(
        rows, {lblHead[2], {&lblHead[0], &lblHead[8], &lblHead[9]}, {&txtPhone1, &txtPhone2, &txtPhone3}});
    rows.wideRow(lblHead[6], {&cmbType}); // for words of the user's own
    rows.wideRow(lblHead[3], {&txtAccount});
    rows.wideRow(lblHead[4], {&txtRoute});
    rows.row(lblHead[5], {&txtBalance, &lblChoice[6], &txtDate, &picDate});
    rows.setWidthInCharacters(EntryWidth);
    lblSubhead[4].nameFor(cmbState);
    lblChoice[6].nameFor(txtDate);

    forms::look::Page page(*this);
    page.title(lblMainHead);
    page.column()->addWidget(txtName.widget());
    page.add(rows.layout());
    page.column()->addWidget(separator(*this));
    page.add(stepsOrRequest(*this));
    page.buttons({&cmdState, &cmdBack});
    forms::look::equalWidths({&cmdPrevious, &cmdNext, &cmdState, &cmdBack});
    page.foot(&lblSelIn, &lblCopyright);
}
