// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"
#include "shared/numbered_screen.h"

/// The first screen of a first run. It comes at every start until the user has passed it once.
class frmIntroduction : public NumberedScreen {
public:
    frmIntroduction();

    forms::Picture imgHome{*this, "imgHome"};
    forms::ControlArray<forms::Label, 2> lblHead{*this, "lblHead"};
    forms::ControlArray<forms::Label, 3> lblHead2{*this, "lblHead2"};
    forms::CommandButton cmdOK{*this, "cmdOK"};
    forms::Label lblSelIn{*this, "lblSelIn"};
    forms::Label lblCopyright{*this, "lblCopyright"};

private:
    void look();
    void arrange();
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    void cmdOK_Click();
};
