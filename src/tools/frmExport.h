// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"

/// Has the user choose where everything is written to, writes it, and says what came of it.
class frmExport : public forms::Form {
public:
    frmExport();

    forms::Label lblHead{*this, "lblHead"};
    forms::Label lblTell{*this, "lblTell"};
    forms::Label lblResult{*this, "lblResult"};
    forms::CommandButton cmdChoose{*this, "cmdChoose"};
    forms::CommandButton cmdClose{*this, "cmdClose"};
    forms::Label lblSelIn{*this, "lblSelIn"};
    forms::Label lblCopyright{*this, "lblCopyright"};
    forms::Ticker tmStart{*this, "tmStart", 1};

private:
    void look();
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    void tmStart_Timer();
    void cmdChoose_Click();
    void export_To(const QString& folder);
    void say(const QString& words, int flags);
};
