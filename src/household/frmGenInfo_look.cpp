// SPDX-License-Identifier: GPL-3.0-or-later
#include "household/frmGenInfo.h"

#include "core/conventions.h"
#include "core/data_store.h"
#include "platform/forms/look.h"

#include <QStringList>
#include <QWidget>

namespace behaviours = forms::behaviours;
using forms::Alignment;

namespace {

constexpr int helpTopic = 7001;

struct EntryLook {
    int index;
    const char* label; ///< null: a piece of a phone number that stands behind its first one
    int maxLength;
    Alignment alignment;
    const char* toolTip;
    int tabIndex;
    int width; ///< in average characters; 0: what its row has room for
};

constexpr auto left = Alignment::Left;
constexpr auto centre = Alignment::Centre;

constexpr EntryLook entries[] = {
    {General::Last, "Last Name", 50, left, " Enter Your Last Name ", 3, 0},
    {General::First, "First Name", 50, left, " Enter Your First Name  ", 1, 0},
    {General::Middle, "M.I.", 1, centre, " Enter Your Middle Initial ", 2, 3},
    {General::Address, "Address", 50, left, " Enter Your Current Address ", 4, 0},
    {General::City, "City", 50, left, " Enter The City Where You Live ", 5, 0},
    {General::ZIP, "ZIP", 20, left, " Enter The Postal ZIP Code ", 7, 0},
    {General::HomePhone1, "Home Phone", 3, centre, " Enter The Area Code Of Your Home Phone Number ", 8, 5},
    {General::HomePhone2, nullptr, 3, centre, " Enter The Phone Number Prefix Of Your Home Phone ", 9, 5},
    {General::HomePhone3, nullptr, 4, centre, " Enter The 4 Digit Number Of Your Home Phone ", 10, 6},
    {General::WorkPhone1, "Work Phone", 3, centre, " Enter The Area Code Of Your Work Phone Number ", 11, 5},
    {General::WorkPhone2, nullptr, 3, centre, " Enter The Phone Number Prefix Of Your Work Phone ", 12, 5},
    {General::WorkPhone3, nullptr, 4, centre, " Enter The 4 Digit Number Of Your Work Phone ", 13, 6},
    {General::CellPhone1, "Cell Phone", 3, centre, " Enter The Area Code Of Your Cell Phone Number ", 14, 5},
    {General::CellPhone2, nullptr, 3, centre, " Enter The Phone Number Prefix Of Your Cell Phone ", 15, 5},
    {General::CellPhone3, nullptr, 4, centre, " Enter The 4 Digit Number Of Your Cell Phone ", 16, 6},
    {General::EMail, "E-mail", 255, left, " Enter Your E-mail Address Here ", 17, 0},
};

/// The state box stands in the tab order between city and ZIP.
constexpr int stateTabIndex = 6;

const QStringList states =
    QString("AK AL AR AZ CA CO CT DC DE FL GA HI IA ID IL IN KS KY LA MA MD ME MI MN MO MS MT NC ND "
            "NE NH NJ NM NV NY OH OK OR PA RI SC SD TN TX UT VA VT WA WI WV WY")
        .split(' ');

struct Phone {
    int firstPiece; ///< the entry of the area code; prefix and number follow
    int firstFrame; ///< its "(" in lblHead; ")" and "-" follow
};

constexpr Phone phones[] = {
    {General::HomePhone1, 3},
    {General::WorkPhone1, 6},
    {General::CellPhone1, 9},
};

} // namespace

void frmGenInfo::look()
{
    setTitle(conventions::Title);
    lblHead[0].setCaption("Personal Information");
    lblHead[1].setCaption("First, Complete the Personal Information:");
    lblHead[2].setCaption("Next, Click Save to Continue:");
    lblSelIn.setCaption(conventions::HelpHint);
    lblCopyright.setCaption(conventions::Footer);
    lookOfEntries();
    lookOfButtons();
    answer();
    arrange();
}

void frmGenInfo::lookOfEntries()
{
    for (const EntryLook& look : entries) {
        forms::TextBox& box = txtInfo[look.index];
        if (look.label)
            lblInfo[look.index].setCaption(look.label);
        box.setMaxLength(look.maxLength);
        box.setAlignment(look.alignment);
        box.setToolTip(look.toolTip);
        box.setTabIndex(look.tabIndex);
        if (look.width > 0)
            box.setWidthInCharacters(look.width);
        box.setHelpNumber(helpTopic);
    }
    lblInfo[General::State].setCaption("State");
    cmbState.addItems(states);
    cmbState.setToolTip(" Select Or Enter The State Where You Live ");
    cmbState.setTabIndex(stateTabIndex);
    cmbState.setWidthInCharacters(6);
    cmbState.setHelpNumber(helpTopic);
    for (const Phone& phone : phones) {
        lblHead[phone.firstFrame].setCaption("(");
        lblHead[phone.firstFrame + 1].setCaption(")");
        lblHead[phone.firstFrame + 2].setCaption("-");
    }
}

void frmGenInfo::lookOfButtons()
{
    forms::look::dress(
        {
            {cmdInsInfo, 18, "&Insurance Information",
                " Click Here To Update Or Review Your Home Insurance Policy Information ", "shield"},
            {cmdBank, 19, "&Bank Account Information",
                " Click Here To Add, Update, Delete or Review Your Financial Account(s) ", "bank"},
            {cmdContinue[0], 20, "&Save && Continue", " Click Here To Save Changes To Your Personal Information ",
                "ok"},
            {cmdBack[0], 21, "&Cancel", " Click Here To Return To The Main Menu Without Saving Changes ", "cancel"},
            {cmdExit, 22, "E&xit ", " Click Here To Close Kestrill ", "exit"},
        },
        helpTopic);
}

void frmGenInfo::answer()
{
    for (const EntryLook& look : entries) {
        const int index = look.index;
        behaviours::selectOnFocus(txtInfo[index]);
        txtInfo[index].Change = [this, index] { txtInfo_Change(index); };
    }
    for (int piece = General::HomePhone1; piece <= General::CellPhone3; ++piece)
        behaviours::digitsOnly(txtInfo[piece]);
    behaviours::selectOnFocus(cmbState);
    behaviours::twoLetterCode(cmbState);
    cmbState.Change = [this] { cmbState_Change(); };
    cmbState.LostFocus = [this] { cmbState_LostFocus(); };
    cmdInsInfo.Click = [this] { cmdInsInfo_Click(); };
    cmdContinue[0].Click = [this] { cmdContinue_Click(); };
    cmdBack[0].Click = [this] { cmdBack_Click(); };
    cmdExit.Click = [this] { cmdExit_Click(); };
}

void frmGenInfo::arrange()
{
    forms::look::FieldRows rows;
    rows.words(lblHead[1]);
    rows.wideRow(
        lblInfo[General::First], {&txtInfo[General::First], &lblInfo[General::Middle], &txtInfo[General::Middle]});
    rows.wideRow(lblInfo[General::Last], {&txtInfo[General::Last]});
    rows.wideRow(lblInfo[General::Address], {&txtInfo[General::Address]});
    rows.wideRow(lblInfo[General::City], {&txtInfo[General::City]});
    rows.wideRow(lblInfo[General::State], {&cmbState, &lblInfo[General::ZIP], &txtInfo[General::ZIP]});
    for (const Phone& phone : phones)
        addPhone(rows, phone.firstPiece, phone.firstFrame);
    rows.wideRow(lblInfo[General::EMail], {&txtInfo[General::EMail]});
    lblInfo[General::Middle].nameFor(txtInfo[General::Middle]);
    lblInfo[General::ZIP].nameFor(txtInfo[General::ZIP]);

    rows.layout()->setColumnMinimumWidth(1, forms::look::fieldWidth(50));
    rows.gap();
    rows.buttons({&cmdInsInfo, &cmdBank});
    rows.gap();
    rows.words(lblHead[2]);
    rows.buttons({&cmdContinue[0], &cmdBack[0], &cmdExit});
    forms::look::mainAction(cmdContinue[0]);

    forms::look::Page page(*this);
    page.title(lblHead[0]);
    page.add(rows.layout());
    page.foot(&lblSelIn, &lblCopyright);
}

void frmGenInfo::addPhone(forms::look::FieldRows& rows, int piece, int frame)
{
    rows.row(lblInfo[piece],
        {&lblHead[frame], &txtInfo[piece], &lblHead[frame + 1], &txtInfo[piece + 1], &lblHead[frame + 2],
            &txtInfo[piece + 2]});
    lblInfo[piece].nameFor(txtInfo[piece]);
    txtInfo[piece + 1].widget()->setAccessibleName(lblInfo[piece].caption() + " Prefix");
    txtInfo[piece + 2].widget()->setAccessibleName(lblInfo[piece].caption() + " 4 Digit Number");
}
