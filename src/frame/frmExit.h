// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"

/// The goodbye, after which the process ends.
class frmExit : public forms::Form {
public:
    frmExit();

    forms::Picture imgHome{*this, "imgHome"};
    forms::Label lblHead{*this, "lblHead"};
    forms::Label lblHead1{*this, "lblHead1"};
    forms::Label lblTrouble{*this, "lblTrouble"};
    forms::Label lblCopyright{*this, "lblCopyright"};
    forms::Ticker tmExit{*this, "tmExit", 1500};

    /// Shows itself, with what the user is to know; empty nearly always.
    void tell(const QString& trouble);

private:
    void look();
    void Form_Unload(bool& cancel) override;
    void tmExit_Timer();
};
