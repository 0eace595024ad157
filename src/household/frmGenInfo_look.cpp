// SPDX-License-Identifier: GPL-3.0-or-later
#include "household/frmGenInfo.h"

#include "data/data_store.h"
#include "platform/forms/look.h"
#include "shared/conventions.h"

#include <QGridLayout>

namespace behaviours = forms::behaviours;
using forms::Alignment;

namespace {

constexpr int helpTopic = 7001;

struct EntryLook {
    int index;
    const char* label; ///< null: a piece of a phone number that stands behind its first one
    int maxLength;
    const char* toolTip;
    int tabIndex;
};

constexpr EntryLook entries[] = {
    {General::Last, "Last Name", 50, " Enter Your Last Name ", 3},
    {General::First, "First Name", 50, " Enter Your First Name  ", 1},
    {General::Middle, "M.I.", 1, " Enter Your Middle Initial ", 2},
    {General::Address, "Address", 50, " Enter Your Current Address ", 4},
    {General::City, "City", 50, " Enter The City Where You Live ", 5},
    {General::ZIP, "ZIP", 20, " Enter The Postal ZIP Code ", 7},
    {General::HomePhone1, "Home Phone", 3, " Enter The Area Code Of Your Home Phone Number ", 8},
    {General::HomePhone2, nullptr, 3, " Enter The Phone Number Prefix Of Your Home Phone ", 9},
    {General::HomePhone3, nullptr, 4, " Enter The 4 Digit Number Of Your Home Phone ", 10},
    {General::WorkPhone1, "Work Phone", 3, " Enter The Area Code Of Your Work Phone Number ", 11},
    {General::WorkPhone2, nullptr, 3, " Enter The Phone Number Prefix Of Your Work Phone ", 12},
    {General::WorkPhone3, nullptr, 4, " Enter The 4 Digit Number Of Your Work Phone ", 13},
    {General::CellPhone1, "Cell Phone", 3, " Enter The Area Code Of Your Cell Phone Number ", 14},
    {General::CellPhone2, nullptr, 3, " Enter The Phone Number Prefix Of Your Cell Phone ", 15},
    {General::CellPhone3, nullptr, 4, " Enter The 4 Digit Number Of Your Cell Phone ", 16},
    {General::EMail, "E-mail", 255, " Enter Your E-mail Address Here ", 17},
};

/// The state box stands in the tab order between city and ZIP.
constexpr int stateTabIndex = 6;

struct PhonePlace {
    int firstPiece; ///< the entry of the area code; prefix and number follow
    int firstFrame; ///< its "(" in lblHead; ")" and "-" follow
};

constexpr PhonePlace phones[] = {
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
        box.setToolTip(look.toolTip);
        box.setTabIndex(look.tabIndex);
        box.setHelpNumber(helpTopic);
    }
    txtInfo[General::Middle].setAlignment(Alignment::Centre);
    txtInfo[General::Middle].setWidthInCharacters(3);
    lblInfo[General::State].setCaption("State");
    cmbState.setToolTip(" Select Or Enter The State Where You Live ");
    cmbState.setTabIndex(stateTabIndex);
    cmbState.setHelpNumber(helpTopic);
}

void frmGenInfo::lookOfButtons()
{
    forms::look::configure(
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
    cmdInsInfo.Click = [this] { cmdInsInfo_Click(); };
    cmdBank.Click = [this] { cmdBank_Click(); };
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
    for (const auto& [piece, frame] : phones)
        address::addPhone(rows,
            {lblInfo[piece], {&lblHead[frame], &lblHead[frame + 1], &lblHead[frame + 2]},
                {&txtInfo[piece], &txtInfo[piece + 1], &txtInfo[piece + 2]}});
    rows.wideRow(lblInfo[General::EMail], {&txtInfo[General::EMail]});
    lblInfo[General::Middle].nameFor(txtInfo[General::Middle]);
    lblInfo[General::ZIP].nameFor(txtInfo[General::ZIP]);

    rows.setWidthInCharacters(50);
    rows.gap();
    rows.buttons({&cmdInsInfo, &cmdBank});
    rows.gap();
    rows.words(lblHead[2]);
    rows.buttons({&cmdContinue[0], &cmdBack[0], &cmdExit});

    forms::look::Page page(*this);
    page.title(lblHead[0]);
    page.add(rows.layout());
    page.foot(&lblSelIn, &lblCopyright);
}
