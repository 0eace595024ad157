// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"
#include "tools/restoring.h"

/// What a restore has done, and how to go back.
class frmRestored : public forms::Form {
public:
    frmRestored();

    forms::Label lblHead{*this, "lblHead"};
    forms::ControlArray<forms::Label, 3> lblTell{*this, "lblTell"};
    forms::CommandButton cmdClose{*this, "cmdClose"};
    forms::Label lblSelIn{*this, "lblSelIn"};
    forms::Label lblCopyright{*this, "lblCopyright"};

    /// Shows itself with what is there now, and the name of what was put aside, if anything was.
    void tell(const QString& made, const restoring::Result& result);

private:
    void Form_Unload(bool& cancel) override;
};
