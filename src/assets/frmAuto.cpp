// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/frmAuto.h"

#include "assets/frmAddUpDel.h"
#include "assets/settings.h"
#include "reports/frmPrint.h"
#include "search/frmSearch.h"
#include "shared/areas.h"
#include "shared/conventions.h"
#include "shared/ways.h"

using forms::screen;

namespace {

// The count is of all areas, whichever the menu works on.
bool inventory_Is_Empty(const QString& refusal)
{
    if (Data1.rsInventory.RecordCount() != 0)
        return false;
    conventions::MsgBox(refusal, forms::box::Information);
    return true;
}

} // namespace

frmAuto::frmAuto()
    : AreaMenu("frmAuto", 13)
{
    look();
}

void frmAuto::Form_Activate()
{
    CurrentScreen = Number;
}

void frmAuto::Form_Unload(bool& cancel)
{
    cancel = true;
    cmdLeave_Click();
}

void frmAuto::cmdAdd_Click()
{
    ways::frmMain().FromResults = false;
    hide();
    auto& assets = screen<frmAddUpDel>();
    assets.chkClear.setValue(settings::remembered(General::ClearCheck));
    assets.check_Form_Type();
}

void frmAuto::cmdUpdate_Click()
{
    if (inventory_Is_Empty("There Are No Available Assets To Update...Please Add An Asset Before Continuing!!"))
        return;
    auto& search = screen<frmSearch>();
    search.lblHead[0].setCaption("Search For Asset To Update");
    ways::frmMain().FromMenu = false; // FromResults and CustomPrint stay, on purpose
    search.hide_Progress();
    open_Search();
    search.txtKey.setText({});
}

void frmAuto::cmdDelete_Click()
{
    if (inventory_Is_Empty("There Are No Available Assets To Delete...Please Add An Asset Before Continuing!!"))
        return;
    ways::frmMain().FromResults = false; // FromMenu stays, and the word that was typed, on purpose
    screen<frmPrint>().CustomPrint = false;
    auto& search = screen<frmSearch>();
    search.lblHead[0].setCaption("Search For Asset To Delete");
    search.hide_Progress();
    search.show();
    search.ClearLevel = 0;
    search.clear_listboxes();
    open_Search();
}

void frmAuto::cmdBack_Click()
{
    ways::frmMain().show();
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

void frmAuto::open_Search()
{
    auto& search = screen<frmSearch>();
    search.show();
    search.ClearLevel = 0;
    search.clear_listboxes();
    search.cmbArea.setText(areas::ofMenuTitle(lblHead1[0].caption()).name);
    search.cmbArea.setEnabled(false);
    hide();
}
