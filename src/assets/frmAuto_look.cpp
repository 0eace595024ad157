// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/frmAuto.h"
#include "platform/forms/look.h"
#include "shared/conventions.h"

void frmAuto::look()
{
    setTitle(conventions::Title);
    lblHead1[0].setCaption("Title ");
    lblSelIn.setCaption(conventions::HelpHint);
    lblCopyright.setCaption(conventions::Footer);

    forms::look::configure({
        {cmdAdd[0], 0, "&Add", " Click Here To Add A New Asset To Your Inventory ", "plus"},
        {cmdUpdate[1], 1, "&Update", " Click Here To Update An Existing Asset In Your Inventory ", "pencil"},
        {cmdDelete[0], 2, "&Delete", " Click Here To Delete An Existing Asset From Your Inventory ", "trash"},
        {cmdBack[0], 3, "&Main Menu", " Click Here To Return To The Main Menu ", "back"},
        {cmdLeave[0], 4, "E&xit", " Click Here To Close Kestrill ", "exit"},
    });
    cmdAdd[0].Click = [this] { cmdAdd_Click(); };
    cmdUpdate[1].Click = [this] { cmdUpdate_Click(); };
    cmdDelete[0].Click = [this] { cmdDelete_Click(); };
    cmdBack[0].Click = [this] { cmdBack_Click(); };
    cmdLeave[0].Click = [this] { cmdLeave_Click(); };
    layOut();
}

void frmAuto::layOut()
{
    forms::look::Choices choices;
    choices.add(cmdAdd[0], lblSelOut[0], "Choose This Option To Add A New Asset To Your Inventory");
    choices.add(cmdUpdate[1], lblSelOut[1], "Choose This Option To Update Information On An Asset Already Added");
    choices.add(cmdDelete[0], lblSelOut[2], "Choose This Option To Delete An Asset You Do Not Want Or No Longer Own");

    forms::look::Page page(*this);
    page.title(lblHead1[0]);
    page.add(choices.layout());
    page.space(4);
    page.buttons({&cmdBack[0], &cmdLeave[0]});
    page.space(1);
    page.foot(&lblSelIn, &lblCopyright);
}
