// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"
#include "shared/ways.h"

/// The main menu: the hub of the program, and the way to the closing sequence.
class frmMain : public MainMenu {
public:
    frmMain();

    forms::Picture imgHome{*this, "imgHome"};
    forms::Label lblHead1{*this, "lblHead1"};
    forms::CommandButton cmdIn{*this, "cmdIn"};
    forms::CommandButton cmdOut{*this, "cmdOut"};
    forms::CommandButton cmdAuto{*this, "cmdAuto"};
    forms::ControlArray<forms::Label, 2> lblSelIn{*this, "lblSelIn"}; ///< what cmdIn is for; the help hint
    forms::Label lblSelOut{*this, "lblSelOut"};
    forms::Label lblSelAuto{*this, "lblSelAuto"};
    forms::CommandButton cmdPrint{*this, "cmdPrint"};
    forms::CommandButton cmdSearch{*this, "cmdSearch"};
    forms::CommandButton cmdValue{*this, "cmdValue"};
    forms::CommandButton cmdPersonal{*this, "cmdPersonal"};
    forms::CommandButton cmdLeave{*this, "cmdLeave"};
    forms::Label lblCopyright{*this, "lblCopyright"};

    /// Hides the screen whose number CurrentScreen holds.
    void Hide_Screens();

private:
    void look();
    void layOut();
    void Form_Activate() override;
    void Form_Deactivate() override;
    void Form_Unload(bool& cancel) override;
    void cmdIn_Click();
    void cmdOut_Click();
    void cmdAuto_Click();
    void cmdSearch_Click();
    void cmdPersonal_Click();
    void cmdPrint_Click();
    void cmdValue_Click();
    void cmdLeave_Click();
    void open_Area_Menu();
    void Refresh();

    bool Deactivated = false;
};
