// SPDX-License-Identifier: GPL-3.0-or-later
#include "household/frmIntroduction.h"

#include "data/data_store.h"
#include "household/frmGenInfo.h"
#include "household/frmKeyboard.h"
#include "shared/conventions.h"

using forms::screen;

frmIntroduction::frmIntroduction()
    : NumberedScreen("frmIntroduction", 17)
{
    look();
}

void frmIntroduction::Form_Load()
{
    CurrentScreen = Number;
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
    auto& keyboard = screen<frmKeyboard>();
    keyboard.show();
    hide();
    CurrentScreen = keyboard.Number;
}
