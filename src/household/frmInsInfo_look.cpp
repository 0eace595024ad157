// SPDX-License-Identifier: GPL-3.0-or-later
#include "household/frmInsInfo.h"
#include "platform/forms/look.h"
#include "shared/conventions.h"

#include <QGridLayout>

namespace behaviours = forms::behaviours;

namespace {

constexpr int HelpNumber = 51001;
constexpr int LongestEntry = 254;
constexpr int FieldWidth = 34; // characters
constexpr int DateWidth = 16;

// An empty box takes "None"; one that holds a text is no longer in error.
void completeOnLeaving(forms::TextBox& box)
{
    box.LostFocus = [&box] {
        if (box.text().isEmpty())
            box.setText("None");
        else
            conventions::showNormal(box);
    };
}

} // namespace

void frmInsInfo::look()
{
    setTitle(conventions::Title);
    setHelpNumber(HelpNumber);
    lblHead[0].setCaption("Home Insurance Coverage");
    lblHead[1].setCaption("Insurance Company");
    lblHead[2].setCaption("Policy Number");
    lblHead[3].setCaption("Expiration");
    lblHead[4].setCaption("Coverage Amount");
    lblSelIn.setCaption(conventions::HelpHint);
    lblCopyright.setCaption(conventions::Footer);
    forms::look::configure(
        {
            {txtCompany, 0, " Enter The Company That Is Insuring Your Home Here ", LongestEntry},
            {txtPolicyNum, 1, " Enter The Number Of The Policy For Your Home Here ", LongestEntry},
            {txtPolicyExpire, 2, " Enter The Expiration Date For Your Home Insurance Policy ", LongestEntry},
            {picDate, -1, " This Icon Opens A Calendar So A Date Can Be Selected "},
            {txtCoverageAmt, 3,
                " Enter The Maximum Amount The Insurance Company Will Pay In The Event A Claim Is Filed ",
                LongestEntry},
            {chkNotify, 4,
                " Check This Box If You Want To Be Notified 30 Days Before Your Home Insurance Policy Expires "},
        },
        HelpNumber);
    // cmdUpdate does more when the mouse goes down; cmdCancel and cmdClear never show the pressed colour.
    constexpr auto plain = forms::look::PressedLook::None;
    forms::look::configure(
        {
            {cmdUpdate, 5, "&Update", " Click Here To Update Insurance Information ", "ok", plain},
            {cmdClear, 6, "Cle&ar", " Click Here To Clear This Form ", "clear", plain},
            {cmdCancel, 7, "&Cancel", " Click Here To Return To The Personal Information Window ", "cancel", plain},
        },
        HelpNumber);
    picDate.setPicture(":/pictures/calendar.png", "Calendar");
    txtCoverageAmt.setText("$0.00");
    txtPolicyExpire.setLocked(true); // nothing but the calendar and Clear changes the date
    chkNotify.setCaption(" Notify Me 30 Days Before Policy Expiration");
    answer();
    layOut();
}

void frmInsInfo::answer()
{
    completeOnLeaving(txtCompany);
    completeOnLeaving(txtPolicyNum);
    txtPolicyExpire.LostFocus = [this] {
        if (!txtPolicyExpire.text().isEmpty()) // and stays empty otherwise
            conventions::showNormal(txtPolicyExpire);
    };
    for (forms::TextBox* box : {&txtCompany, &txtPolicyNum, &txtPolicyExpire})
        behaviours::selectOnFocus(*box);
    txtPolicyExpire.Change = [this] { txtPolicyExpire_Change(); };
    txtPolicyExpire.KeyPress = [this](int& KeyAscii) { txtPolicyExpire_KeyPress(KeyAscii); };
    txtPolicyExpire.MouseDown = [this] { show_Policy_Date_Calendar(); };
    picDate.Click = [this] { show_Policy_Date_Calendar(); };
    chkNotify.KeyUp = [this](int&) { chkNotify_worked(); };
    chkNotify.MouseUp = [this] { chkNotify_worked(); };
    cmdUpdate.MouseDown = [this] {
        behaviours::showPressed(cmdUpdate);
        NotifyFromCode = true;
    };
    cmdUpdate.MouseUp = [this] { behaviours::showReleased(cmdUpdate); };
    cmdUpdate.GotFocus = [this] { NotifyFromCode = true; };
    cmdUpdate.Click = [this] { cmdUpdate_Click(); };
    cmdCancel.MouseUp = [this] { behaviours::showReleased(cmdCancel); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };
    cmdClear.Click = [this] { cmdClear_Click(); };
}

void frmInsInfo::layOut()
{
    for (forms::TextBox* box : {&txtCompany, &txtPolicyNum})
        box->setWidthInCharacters(FieldWidth);
    for (forms::TextBox* box : {&txtPolicyExpire, &txtCoverageAmt})
        box->setWidthInCharacters(DateWidth);
    forms::look::FieldRows rows;
    rows.row(lblHead[1], {&txtCompany});
    rows.row(lblHead[2], {&txtPolicyNum});
    rows.row(lblHead[3], {&txtPolicyExpire, &picDate});
    rows.row(lblHead[4], {&txtCoverageAmt});
    rows.layout()->addWidget(chkNotify.widget(), rows.layout()->rowCount(), 1);

    auto* middle = new QHBoxLayout;
    middle->addStretch();
    middle->addLayout(rows.layout());
    middle->addStretch();

    forms::look::Page page(*this);
    page.title(lblHead[0]);
    page.add(middle);
    page.space(3);
    page.buttons({&cmdUpdate, &cmdClear, &cmdCancel});
    page.space(1);
    page.foot(&lblSelIn, &lblCopyright);
}
