// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/frmMain.h"
#include "platform/forms/look.h"
#include "shared/conventions.h"

#include <QHBoxLayout>
#include <QWidget>

namespace {

constexpr int HelpNumber = 1001;

} // namespace

void frmMain::look()
{
    setTitle(conventions::Title);
    setHelpNumber(HelpNumber);
    imgHome.setPicture(":/pictures/menu.png", "Kestrill");
    lblHead1.setCaption("Welcome To Kestrill Main Menu");
    lblSelIn[1].setCaption(conventions::HelpHint);
    lblCopyright.setCaption(conventions::Footer);

    forms::look::configure(
        {
            {cmdIn, 0, "&Indoor", " Click Here To Add An Indoor Asset To Your Inventory ", "house"},
            {cmdOut, 1, "&Outdoor", " Click Here To Add An Outdoor Asset To Your Inventory ", "tree"},
            {cmdAuto, 2, "&Mobile", " Click Here To Add A Mobile Asset To Your Inventory ", "car"},
            {cmdPrint, 3, " &Print", " Click Here To Print Your Assets ", "printer"},
            {cmdSearch, 4, "&Search", " Click Here To Search For Assets That Have Been Added To Your Inventory ",
                "magnifier"},
            {cmdValue, 5, "&Value", " Click Here To See Your Current Total Asset Value ", "dollar"},
            {cmdPersonal, 6, "Pe&rsonal", " Click Here To Change Or Review Your Personal Information ", "person"},
            {cmdLeave, 7, "E&xit", " Click Here To Close Kestrill ", "exit"},
        },
        HelpNumber);
    cmdIn.Click = [this] { cmdIn_Click(); };
    cmdOut.Click = [this] { cmdOut_Click(); };
    cmdAuto.Click = [this] { cmdAuto_Click(); };
    cmdPrint.Click = [this] { cmdPrint_Click(); };
    cmdValue.Click = [this] { cmdValue_Click(); };
    cmdSearch.Click = [this] { cmdSearch_Click(); };
    cmdPersonal.Click = [this] { cmdPersonal_Click(); };
    cmdLeave.Click = [this] { cmdLeave_Click(); };
    layOut();
}

void frmMain::layOut()
{
    forms::look::Choices areas;
    areas.add(cmdIn, lblSelIn[0], "Choose This Option If You Want To Add Or Update An Asset Inside Your Home");
    areas.add(cmdOut, lblSelOut, "Choose This Option If You Want To Add Or Update An Asset Outside Your Home");
    areas.add(
        cmdAuto, lblSelAuto, "Choose This Option If You Want To Add Or Update An Asset That Is Mobile Or Off-Site");

    auto* middle = new QHBoxLayout;
    middle->setSpacing(forms::look::grid(4));
    middle->addWidget(imgHome.widget(), 0, Qt::AlignVCenter);
    middle->addLayout(areas.layout());

    forms::look::Page page(*this);
    page.title(lblHead1);
    page.add(middle);
    page.space(2);
    page.wideButtons({&cmdPrint, &cmdSearch, &cmdValue, &cmdPersonal, &cmdLeave});
    page.foot(&lblSelIn[1], &lblCopyright);
}

void frmMain::Refresh()
{
    window()->update();
}
