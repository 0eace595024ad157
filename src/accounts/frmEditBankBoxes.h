// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/values/integer.h"
#include "shared/option_menu.h"

/// The menu in front of the account screen: what that is to do, add, update or delete.
class frmEditBankBoxes : public OptionMenu {
public:
    enum Mode { Add, Update, Delete }; ///< by the indices of optEdit

    frmEditBankBoxes();

    /// The Mode of the account screen: Add at first.
    values::Integer AccountMode;

private:
    void Form_Activate() override;
    void Form_Unload(bool& cancel) override;
    void optEdit_Click(int Index);
    void cmdUpdate_Click();
    void cmdCancel_Click();
    void open_Account_Screen();
};
