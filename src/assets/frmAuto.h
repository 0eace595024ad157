// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"
#include "platform/values/integer.h"
#include "shared/ways.h"

/// The area menu: add, update or delete an asset of the area whose title stands in lblHead1(0).
class frmAuto : public AreaMenu {
public:
    frmAuto();

    forms::ControlArray<forms::CommandButton, 1> cmdAdd{*this, "cmdAdd"};
    forms::ControlArray<forms::CommandButton, 2> cmdUpdate{*this, "cmdUpdate", {0}};
    forms::ControlArray<forms::CommandButton, 1> cmdDelete{*this, "cmdDelete"};
    forms::ControlArray<forms::CommandButton, 1> cmdBack{*this, "cmdBack"};
    forms::ControlArray<forms::CommandButton, 1> cmdLeave{*this, "cmdLeave"};
    forms::ControlArray<forms::Label, 3> lblSelOut{*this, "lblSelOut"}; ///< what adding, updating and deleting are for
    forms::Label lblSelIn{*this, "lblSelIn"};
    forms::Label lblCopyright{*this, "lblCopyright"};

    /// Shows the menu for the area whose title has been written.
    void load_It();

    /// Shows the search screen, which then stays inside the area.
    void open_Search();

private:
    void look();
    void layOut();
    void Form_Activate() override;
    void Form_Unload(bool& cancel) override;
    void cmdAdd_Click();
    void cmdUpdate_Click();
    void cmdDelete_Click();
    void cmdBack_Click();
    void cmdLeave_Click();

    values::Integer HelpBase;
};
