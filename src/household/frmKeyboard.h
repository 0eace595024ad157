// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"
#include "shared/numbered_screen.h"

/// The second screen of a first run: it shows where the F1 key is.
class frmKeyboard : public NumberedScreen {
public:
    frmKeyboard();

    forms::Picture Picture1{*this, "Picture1"};
    forms::CommandButton cmdUpdate{*this, "cmdUpdate"};
    forms::Label lblCopyright{*this, "lblCopyright"};

private:
    void look();
    void Form_Unload(bool& cancel) override;
    void cmdUpdate_Click();
};
