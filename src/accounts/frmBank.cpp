// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounts/frmBank.h"

#include "accounts/account_menu.h"
#include "platform/values/date.h"
#include "shared/conventions.h"
#include "shared/frmCalendar.h"
#include "shared/ways.h"

using forms::screen;

namespace {

constexpr int DateOfBalance = 5; // DateTarget of the calendar

/// What tells the user, and the help, the mode.
struct Heading {
    const char* caption;
    int help;
};

/// By Mode of the menu.
constexpr Heading headings[] = {
    {"Add Financial Account", 41001},
    {"Update Financial Account", 42001},
    {"Delete Financial Account", 43001},
};

int mode()
{
    return ways::frmEditBankBoxes().AccountMode;
}

} // namespace

frmBank::frmBank()
    : NumberedScreen("frmBank", 7)
{
    look();
}

void frmBank::Form_Activate()
{
    CurrentScreen = Number;
    if (FreshEntry)
        txtName.setFocus();
    if (ReturnFromCalendar)
        return;
    conventions::showNormal(txtAccount);
    conventions::showNormal(txtName);
    reset_Account_Fields();
    lblMainHead.setCaption(headings[mode()].caption);
    txtAccount.setDeleteRefused(mode() != AccountMenu::Add); // no character comes of it to be refused
    if (mode() == AccountMenu::Add)
        prepare_For_Adding();
    else
        show_Existing_Accounts();
    if (mode() == AccountMenu::Delete)
        prepare_For_Deleting();
    HelpContextBase = headings[mode()].help;
    set_Help_Context();
}

// The keys of the account number stay refused.
void frmBank::Form_Deactivate()
{
    txtAccount.setLocked(false);
}

void frmBank::Form_Unload(bool& cancel)
{
    cancel = true;
    cmdBack_Click();
}

// ---- entries

void frmBank::txtAccount_KeyPress(int& KeyAscii)
{
    if (mode() == AccountMenu::Add)
        return;
    conventions::MsgBox("The Account Number Can Not Be Changed!", forms::box::Exclamation);
    KeyAscii = forms::key::Refused;
}

void frmBank::phone_KeyUp(const forms::TextBox& piece, forms::Control& next)
{
    if (FreshEntry)
        address::hopFrom(piece, next);
}

void frmBank::show_Balance_Date_Calendar()
{
    ReturnFromCalendar = true;
    setEnabled(false);
    cmdBack.setEnabled(false);
    cmdState.setEnabled(false);
    const auto give_Back = [this] {
        FreshEntry = false;
        setEnabled(true);
        cmdBack.setEnabled(true);
        cmdState.setEnabled(true);
    };
    const auto take_Date = [this](const forms::MonthCalendar& date) { txtDate.setText(frmCalendar::date_Text(date)); };
    screen<frmCalendar>().show_For({*this, DateOfBalance, give_Back, take_Date}, txtDate.text());
}

// ---- stepping through the accounts

// To the second one from here and back, which tells whether there is another behind the next.
void frmBank::cmdNext_Click()
{
    auto& accounts = Data1.rsBank;
    if (!accounts.atEOF()) {
        accounts.MoveNext();
        accounts.MoveNext();
        if (accounts.atEOF())
            cmdNext.setEnabled(false);
        accounts.MovePrevious();
        cmdPrevious.setEnabled(true);
        load_Account();
    }
    txtName.setFocus();
}

void frmBank::cmdPrevious_Click()
{
    auto& accounts = Data1.rsBank;
    if (!accounts.atBOF()) {
        accounts.MovePrevious();
        accounts.MovePrevious();
        if (accounts.atBOF())
            cmdPrevious.setEnabled(false);
        accounts.MoveNext();
        cmdNext.setEnabled(true);
        load_Account();
    }
    txtName.setFocus();
}

// ---- the three modes

void frmBank::prepare_For_Adding()
{
    cmdPrevious.setVisible(false);
    cmdNext.setVisible(false);
    lblState.setVisible(true);
    txtName.setText(NoName);
    cmbType.setText("Checking");
    txtName.selectAll();
}

// The name stays readable and keeps the focus.
void frmBank::prepare_For_Deleting()
{
    txtName.setLocked(true);
    enable_All_But_Name(false);
}

void frmBank::show_Existing_Accounts()
{
    cmdPrevious.setVisible(true);
    cmdNext.setVisible(true);
    cmdNext.setEnabled(Data1.rsBank.RecordCount() >= 2);
    cmdPrevious.setEnabled(false);
    lblState.setVisible(false);
    rewind(Data1.rsBank);
    load_Account();
}

void frmBank::load_Account()
{
    for (const auto& [box, column] : entries()) {
        const QString text = conventions::withoutNone(Data1.rsBank.Fields(column).text());
        show_In(box, column == Bank::AvailableBalance ? values::currencyFormat(text) : text);
    }
}

void frmBank::set_Help_Context()
{
    for (const Entry& entry : entries())
        entry.box.setHelpNumber(HelpContextBase);
    conventions::setHelpNumbers(HelpContextBase, {&cmdBack, &cmdState, &cmdPrevious, &cmdNext});
}

void frmBank::reset_Account_Fields()
{
    for (const Entry& entry : entries())
        show_In(entry.box, {});
    txtName.setText(NoName);
    txtDate.setText(values::Today().toText());
}

void frmBank::enable_Fields()
{
    txtName.setLocked(false);
    enable_All_But_Name(true);
}

void frmBank::enable_All_But_Name(bool enabled)
{
    for (const Entry& entry : entries())
        if (&entry.box != &txtName)
            entry.box.setEnabled(enabled);
}

// Codes of states that come from here lead nowhere.
void frmBank::show_In(forms::TextEntry& box, const QString& text)
{
    if (&box == &cmbState)
        state_.setText(text);
    else
        box.setText(text);
}

// By the ordinals of the columns.
std::array<frmBank::Entry, 12> frmBank::entries()
{
    return {{{txtName, Bank::FinancialInstitution}, {txtAddress, Bank::Address}, {txtPhone1, Bank::Phone1},
        {txtPhone2, Bank::Phone2}, {txtPhone3, Bank::Phone3}, {txtAccount, Bank::AccountNumber},
        {txtRoute, Bank::RoutingNumber}, {txtBalance, Bank::AvailableBalance}, {txtDate, Bank::AsOf},
        {cmbType, Bank::AccountType}, {txtCity, Bank::City}, {cmbState, Bank::State}}};
}
