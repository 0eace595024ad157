// SPDX-License-Identifier: GPL-3.0-or-later
#include "household/frmKeyboard.h"

#include "household/frmGenInfo.h"

using forms::screen;

frmKeyboard::frmKeyboard()
    : NumberedScreen("frmKeyboard", 18)
{
    look();
}

void frmKeyboard::Form_Unload(bool& cancel)
{
    cancel = true;
    cmdUpdate_Click();
}

void frmKeyboard::cmdUpdate_Click()
{
    screen<frmGenInfo>().show();
    hide();
}
