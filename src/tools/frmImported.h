// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"
#include "tools/importing.h"

/// What an import has done, and how to go back.
class frmImported : public forms::Form {
public:
    frmImported();

    forms::Label lblHead{*this, "lblHead"};
    forms::ControlArray<forms::Label, 4> lblTell{*this, "lblTell"};
    forms::CommandButton cmdClose{*this, "cmdClose"};
    forms::Label lblSelIn{*this, "lblSelIn"};
    forms::Label lblCopyright{*this, "lblCopyright"};

    /// Shows itself with what has come, and the name of the file of wrong rows, if one was written.
    void tell(const importing::Plan& plan, const importing::Result& result, const QString& wrongFile);

private:
    void Form_Unload(bool& cancel) override;
};
