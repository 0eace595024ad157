// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assets/money_field.h"
#include "platform/forms/forms.h"
#include "shared/numbered_screen.h"

/// The insurance policy of the home. The personal information opens and fills it. Its close box destroys it, unlike any
/// other screen; the next use makes a new one.
class frmInsInfo : public NumberedScreen {
public:
    frmInsInfo();

    forms::ControlArray<forms::Label, 5> lblHead{*this, "lblHead"}; ///< the heading, then a label for each box
    forms::TextBox txtCompany{*this, "txtCompany"};
    forms::TextBox txtPolicyNum{*this, "txtPolicyNum"};
    forms::TextBox txtPolicyExpire{*this, "txtPolicyExpire"};
    forms::Picture picDate{*this, "picDate"};
    forms::TextBox txtCoverageAmt{*this, "txtCoverageAmt"};
    forms::CheckBox chkNotify{*this, "chkNotify"};
    forms::CommandButton cmdUpdate{*this, "cmdUpdate"};
    forms::CommandButton cmdCancel{*this, "cmdCancel"};
    forms::CommandButton cmdClear{*this, "cmdClear"};
    forms::Label lblSelIn{*this, "lblSelIn"};
    forms::Label lblCopyright{*this, "lblCopyright"};

    /// False while the user works the check box, which check_Notify may refuse then.
    bool NotifyFromCode = false;

private:
    void look();
    void answer();
    void layOut();
    void Form_Activate() override;
    void Form_Unload(bool& cancel) override;
    void txtPolicyExpire_Change();
    void txtPolicyExpire_KeyPress(int& KeyAscii);
    void chkNotify_worked();
    void cmdUpdate_Click();
    void cmdCancel_Click();
    void cmdClear_Click();

    void show_Policy_Date_Calendar();
    void check_Notify();
    void reset_Notify();
    void refuse_Notify();
    void write_Policy();
    void whiten();
    bool has_Changed() const;

    MoneyField coverage_{txtCoverageAmt, {"$.00", "None"}};
};
