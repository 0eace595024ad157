// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/frmBW_Splash.h"

#include "frame/frmStartup.h"

frmBW_Splash::frmBW_Splash()
    : forms::Form("frmBW_Splash")
{
    look();
}

void frmBW_Splash::Form_Load()
{
    tmrLoad.setEnabled(true);
}

void frmBW_Splash::Form_Unload(bool& cancel)
{
    cancel = true;
}

// The first touch of frmStartup runs the whole start.
void frmBW_Splash::tmrLoad_Timer()
{
    hide();
    tmrLoad.setEnabled(false);
    Picture1.release();
    giveUpWindow(); // it never comes again
    forms::screen<frmStartup>();
}
