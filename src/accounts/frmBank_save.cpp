// SPDX-License-Identifier: GPL-3.0-or-later
// Saving, updating and deleting the account on the screen, and leaving it.
#include "accounts/account_menu.h"
#include "accounts/frmBank.h"
#include "platform/values/date.h"
#include "shared/conventions.h"
#include "shared/ways.h"

#include <algorithm>

using conventions::None;

namespace {

constexpr int YesNo = forms::box::YesNo;

bool refuse(forms::TextBox& box, const QString& message)
{
    conventions::MsgBox(message, forms::box::Exclamation);
    conventions::showError(box);
    box.setFocus();
    return false;
}

// What is no date counts as unchanged.
bool isAnotherDay(const QString& text)
{
    return values::Date::tryParse(text).value_or(values::Today()) != values::Today();
}

} // namespace

void frmBank::cmdState_Click()
{
    switch (ways::frmEditBankBoxes().AccountMode) {
    case AccountMenu::Add:
        return add_Account();
    case AccountMenu::Update:
        return update_Account();
    case AccountMenu::Delete:
        return delete_Account();
    }
}

void frmBank::cmdBack_Click()
{
    enable_Fields();
    if (leaving_Is_Confirmed())
        return_To_Personal_Information();
}

// ---- saving

void frmBank::add_Account()
{
    AccountChanged = is_Known_Account();
    if (AccountChanged && !txtAccount.text().isEmpty()) {
        conventions::MsgBox(
            "An Account With The Account Number You Have Listed Is Already Available", forms::box::Exclamation);
        return;
    }
    if (!has_All_Required())
        return;
    Data1.rsBank.AddNew();
    store_Fields();
    conventions::MsgBox("   Your New Account Has Been Added!", forms::box::Information);
    return_To_Personal_Information();
}

void frmBank::update_Account()
{
    if (!has_All_Required())
        return;
    store_Fields();
    conventions::MsgBox("          Account Has Been Updated!", forms::box::Exclamation); // no information, on purpose
    return_To_Personal_Information();
}

void frmBank::delete_Account()
{
    if (!conventions::confirmed("Deleting This Account Will Be Permanent...Continue?", forms::box::Question + YesNo))
        return;
    Data1.rsBank.Delete();
    enable_Fields();
    return_To_Personal_Information();
}

// The number as a whole and in this very spelling.
bool frmBank::is_Known_Account()
{
    auto& accounts = Data1.rsBank;
    for (rewind(accounts); !accounts.atEOF(); accounts.MoveNext())
        if (accounts.Fields(Bank::AccountNumber) == txtAccount.text())
            return true;
    return false;
}

bool frmBank::has_All_Required()
{
    if (txtName.text().isEmpty() || txtName.text() == NoName) {
        refuse(txtName, "Please Enter An Account Name For This Financial Institution!");
        txtName.setText({});
        return false;
    }
    conventions::showNormal(txtName);
    // The words of the name, with blanks around them, are no number either: on purpose.
    if (txtAccount.text().isEmpty() || txtAccount.text() == " Enter Financial Institution ")
        return refuse(txtAccount, "Please Enter An Account Number For This Financial Institution!");
    conventions::showNormal(txtAccount);
    return true;
}

void frmBank::store_Fields()
{
    for (const auto& [box, column] : entries()) {
        const QString text = conventions::orNone(box.text());
        Data1.rsBank.Fields(column) = column == Bank::AvailableBalance ? values::groupedByThrees(text) : text;
    }
    Data1.rsBank.Update();
}

// ---- leaving

bool frmBank::leaving_Is_Confirmed()
{
    if (Data1.rsBank.RecordCount() == 0) // whatever the form holds, on purpose
        return conventions::confirmed("Financial Account Has Not Been Saved...Continue?", forms::box::Question + YesNo);
    check_For_Changes();
    return !AccountChanged
        || conventions::confirmed(
            "All Changes To This Account Will Be Lost...Continue?", forms::box::Exclamation + YesNo);
}

void frmBank::check_For_Changes()
{
    const int mode = ways::frmEditBankBoxes().AccountMode;
    AccountChanged =
        (mode == AccountMenu::Add && is_Filled_In()) || (mode == AccountMenu::Update && differs_From_Row());
}

bool frmBank::is_Filled_In() const
{
    const forms::TextEntry* const emptyAtFirst[] = {
        &txtAddress, &txtCity, &cmbState, &txtPhone1, &txtPhone2, &txtPhone3, &txtAccount, &txtRoute, &txtBalance};
    const auto holdsText = [](const forms::TextEntry* box) { return !box->text().isEmpty(); };
    return txtName.text() != NoName || std::any_of(std::begin(emptyAtFirst), std::end(emptyAtFirst), holdsText)
        || isAnotherDay(txtDate.text()) || (cmbType.text() != "Checking" && !cmbType.text().isEmpty());
}

// An entry that was stored empty never counts, except the name. A balance is compared as it was stored, so that one
// stored in another form counts.
bool frmBank::differs_From_Row()
{
    auto& account = Data1.rsBank;
    if (account.atBOF() || account.atEOF())
        return false;
    const auto differs = [this, &account](const Entry& entry) {
        const QString& stored = account.Fields(entry.column).text();
        return stored != entry.box.text() && (stored != None || &entry.box == &txtName);
    };
    const auto all = entries();
    return std::any_of(all.begin(), all.end(), differs);
}

void frmBank::return_To_Personal_Information()
{
    hide();
    ways::frmGenInfo().show();
}
