// SPDX-License-Identifier: GPL-3.0-or-later
#include "household/frmIntroduction.h"

#include "data/data_store.h"
#include "frame/frmStartup.h"
#include "household/frmGenInfo.h"
#include "household/frmKeyboard.h"
#include "shared/conventions.h"

using forms::screen;

frmIntroduction::frmIntroduction()
    : forms::Form("frmIntroduction")
{
    look();
}

void frmIntroduction::Form_Load()
{
    frmStartup::CurrentScreen = 17;
}

void frmIntroduction::Form_Unload(bool& cancel)
{
    cancel = true;
    conventions::confirm_Close(*this);
}

void frmIntroduction::cmdOK_Click()
{
    screen<frmGenInfo>().cmdBack[0].setEnabled(false); // on a first run there is nothing to go back to
    Data1.rsGeneral.Fields(General::Introduced) = "1";
    Data1.rsGeneral.Update();
    screen<frmKeyboard>().show();
    hide();
    frmStartup::CurrentScreen = 18;
}
