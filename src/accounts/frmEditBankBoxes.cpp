// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounts/frmEditBankBoxes.h"

#include "accounts/frmBank.h"
#include "data/data_store.h"
#include "shared/conventions.h"
#include "shared/ways.h"

using forms::screen;

namespace {

/// What a mode makes of the account screen.
struct ModeOfAccount {
    const char* caption;
    const char* icon;
    const char* toolTip;
    const char* refusal; ///< where there is no account; null where none is needed
};

/// By Mode.
constexpr ModeOfAccount modes[] = {
    {"&Add New Account", ":/pictures/icons/plus.png", " Click Here To Add A New Financial Account ", nullptr},
    {"&Update Account", ":/pictures/icons/pencil.png", " Click Here To Update Financial Account ",
        "There Are No Accounts Available To Update!"},
    {"&Delete Account", ":/pictures/icons/trash.png", " Click Here To Delete Financial Account ",
        "There Are No Accounts Available To Delete!"},
};

} // namespace

void frmEditBankBoxes::Form_Activate()
{
    CurrentScreen = Number;
    AccountMode = 0;
    optEdit[Add].setValue(true);
    optEdit[Add].setFocus(); // the keys begin at the dot
}

void frmEditBankBoxes::Form_Unload(bool& cancel)
{
    cancel = true;
    cmdCancel_Click();
}

void frmEditBankBoxes::optEdit_Click(int Index)
{
    auto& account = screen<frmBank>();
    account.cmdState.setCaption(modes[Index].caption);
    account.cmdState.setIcon(modes[Index].icon);
    account.cmdState.setDestructive(Index == Delete);
    AccountMode = Index;
    account.picDate.setEnabled(Index != Delete);
}

void frmEditBankBoxes::cmdUpdate_Click()
{
    auto& account = screen<frmBank>();
    account.FreshEntry = true;
    if (AccountMode < Add || AccountMode > Delete) {
        conventions::MsgBox("You Must Select An Option Before Continuing!", forms::box::Exclamation);
        return;
    }
    const ModeOfAccount& mode = modes[AccountMode];
    if (mode.refusal && Data1.rsBank.RecordCount() == 0) {
        conventions::MsgBox(mode.refusal, forms::box::Information);
        const bool isOnOptions = optEdit[AccountMode].hasFocus();
        optEdit[Add].setValue(true);
        if (isOnOptions)
            optEdit[Add].setFocus();
        return;
    }
    account.cmdState.setToolTip(mode.toolTip);
    if (AccountMode != Add)
        account.txtAccount.setLocked(true);
    open_Account_Screen();
}

void frmEditBankBoxes::cmdCancel_Click()
{
    ways::frmGenInfo().show();
    hide();
}

void frmEditBankBoxes::open_Account_Screen()
{
    screen<frmBank>().ReturnFromCalendar = false;
    screen<frmBank>().show();
    hide();
}
