// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"

/// The picture that stands until the start begins.
class frmBW_Splash : public forms::Form {
public:
    frmBW_Splash();

    forms::Picture Picture1{*this, "Picture1"};
    forms::Ticker tmrLoad{*this, "tmrLoad", 2000};

private:
    void look();
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    void tmrLoad_Timer();
};
