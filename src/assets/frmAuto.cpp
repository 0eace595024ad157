// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/frmAuto.h"

#include "assets/areas.h"
#include "assets/frmAddUpDel.h"
#include "assets/settings.h"
#include "core/conventions.h"
#include "core/frmMain.h"
#include "core/frmStartup.h"

using forms::screen;

namespace {

// The count is of all areas, whichever the menu works on.
void refuse_Empty_Inventory(const QString& message)
{
    if (Data1.rsInventory.RecordCount() == 0)
        conventions::MsgBox(message, forms::box::Information);
}

} // namespace

frmAuto::frmAuto()
    : forms::Form("frmAuto")
{
    look();
}

void frmAuto::Form_Activate()
{
    frmStartup::CurrentScreen = 13;
}

void frmAuto::Form_Unload(bool& cancel)
{
    cancel = true;
    cmdLeave_Click();
}

void frmAuto::cmdAdd_Click()
{
    screen<frmMain>().FromResults = false;
    hide();
    auto& assets = screen<frmAddUpDel>();
    assets.chkClear.setValue(settings::remembered(General::ClearCheck));
    assets.check_Form_Type();
}

void frmAuto::cmdUpdate_Click()
{
    refuse_Empty_Inventory("There Are No Available Assets To Update...Please Add An Asset Before Continuing!!");
}

void frmAuto::cmdDelete_Click()
{
    refuse_Empty_Inventory("There Are No Available Assets To Delete...Please Add An Asset Before Continuing!!");
}

void frmAuto::cmdBack_Click()
{
    screen<frmMain>().show();
    hide();
}

void frmAuto::cmdLeave_Click()
{
    conventions::confirm_Close(*this);
}

void frmAuto::load_It()
{
    show();
    cmdAdd[0].setFocus();
    HelpBase = areas::ofMenuTitle(lblHead1[0].caption()).menuHelp;
    conventions::setHelpNumbers(HelpBase, {&cmdAdd[0], &cmdUpdate[1], &cmdDelete[0], &cmdBack[0], &cmdLeave[0]});
}
