// SPDX-License-Identifier: GPL-3.0-or-later
#include "household/frmTotals.h"

#include "frame/frmMain.h"

frmTotals::frmTotals()
    : forms::Form("frmTotals")
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
    forms::screen<frmMain>().show();
    hide();
}
