// SPDX-License-Identifier: GPL-3.0-or-later
#include "household/frmKeyboard.h"

#include "platform/forms/look.h"
#include "shared/conventions.h"

void frmKeyboard::look()
{
    setTitle(conventions::Title);
    Picture1.setPicture(":/pictures/keyboard.png",
        "A keyboard on which the F1 key is marked, in the top row, right of Esc. Press F1 on any screen to read about "
        "the box you are in.");
    cmdUpdate.setCaption("&OK");
    cmdUpdate.setToolTip(" Click Here To Continue ");
    cmdUpdate.setIcon(":/pictures/icons/ok.png");
    cmdUpdate.setTabIndex(0);
    cmdUpdate.setDefault(true);
    lblCopyright.setCaption(conventions::Footer);

    cmdUpdate.Click = [this] { cmdUpdate_Click(); };
    forms::behaviours::pressedColour(cmdUpdate);

    forms::look::Page page(*this);
    page.add(Picture1);
    page.space(2);
    page.buttons({&cmdUpdate});
    page.foot(nullptr, &lblCopyright);
}
