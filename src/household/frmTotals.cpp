// SPDX-License-Identifier: GPL-3.0-or-later
#include "household/frmTotals.h"

#include "shared/ways.h"

frmTotals::frmTotals()
    : NumberedScreen("frmTotals", 6)
{
    look();
}

void frmTotals::Form_Unload(bool& cancel)
{
    cancel = true;
    cmdOK_Click();
}

void frmTotals::cmdOK_Click()
{
    ways::frmMain().show();
    hide();
}
