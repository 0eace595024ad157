// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "accounts/account_menu.h"

/// The menu in front of the account screen: what that is to do, add, update or delete.
class frmEditBankBoxes : public AccountMenu {
public:
    frmEditBankBoxes();

private:
    void Form_Activate() override;
    void Form_Unload(bool& cancel) override;
    void optEdit_Click(int Index);
    void cmdUpdate_Click();
    void cmdCancel_Click();
    void open_Account_Screen();
};
