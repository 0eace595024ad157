// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"
#include "platform/values/currency.h"
#include "platform/values/integer.h"
#include "shared/numbered_screen.h"

/// What all assets are worth, in each area and together. The main menu counts and shows it anew each time.
class frmTotals : public NumberedScreen {
public:
    frmTotals();

    forms::Label lblHead{*this, "lblHead"};
    forms::Label lblInNumAssets{*this, "lblInNumAssets"};
    forms::Label lblIndoorTots{*this, "lblIndoorTots"};
    forms::Label lblOutNumAssets{*this, "lblOutNumAssets"};
    forms::Label lblOutdoorTots{*this, "lblOutdoorTots"};
    forms::Label lblMobNumAssets{*this, "lblMobNumAssets"};
    forms::Label lblMobileTots{*this, "lblMobileTots"};
    forms::ControlArray<forms::Label, 2> lblHead2{*this, "lblHead2"}; ///< headings of the count and of the sum of all
    forms::Label lblTotNumAssets{*this, "lblTotNumAssets"};
    forms::Label lblGrandTot{*this, "lblGrandTot"};
    forms::CommandButton cmdOK{*this, "cmdOK"};
    forms::Label lblSelIn{*this, "lblSelIn"};
    forms::Label lblCopyright{*this, "lblCopyright"};

    values::Currency IndoorTotal;
    values::Currency OutdoorTotal;
    values::Currency MobileTotal;
    values::Currency GrandTotal;
    values::Integer IndoorCount;
    values::Integer OutdoorCount;
    values::Integer MobileCount;
    values::Integer TotalCount; ///< of all assets, whatever their area

private:
    void look();
    void layOut();
    void Form_Unload(bool& cancel) override;
    void cmdOK_Click();
};
