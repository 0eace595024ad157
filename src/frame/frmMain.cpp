// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/frmMain.h"

#include "assets/frmAuto.h"
#include "data/data_store.h"
#include "household/frmGenInfo.h"
#include "reports/frmPrint.h"
#include "search/frmSearch.h"
#include "shared/conventions.h"

using forms::screen;

frmMain::frmMain()
    : MainMenu("frmMain", 2)
{
    look();
}

void frmMain::Form_Activate()
{
    CurrentScreen = Number;
    if (!Deactivated)
        Refresh();
}

void frmMain::Form_Deactivate()
{
    Deactivated = true;
}

void frmMain::Form_Unload(bool& cancel)
{
    cancel = true;
    cmdLeave_Click();
}

void frmMain::cmdIn_Click()
{
    screen<frmAuto>().lblHead1[0].setCaption("Indoor Asset Management");
    open_Area_Menu();
}

void frmMain::cmdOut_Click()
{
    screen<frmAuto>().lblHead1[0].setCaption("Outdoor Asset Management");
    open_Area_Menu();
}

void frmMain::cmdAuto_Click()
{
    screen<frmAuto>().lblHead1[0].setCaption("Mobile Asset Management");
    open_Area_Menu();
}

void frmMain::cmdPersonal_Click()
{
    auto& personal = screen<frmGenInfo>();
    personal.lblHead[1].setCaption("First, Select An Item To Change Or Update");
    personal.cmdBack[0].setEnabled(true);
    personal.lblHead[2].setCaption("Second, Click Save to Update");
    personal.show();
    personal.load_PersonalInfo();
    hide();
}

void frmMain::cmdPrint_Click()
{
    screen<frmPrint>().show();
    hide();
}

void frmMain::cmdSearch_Click()
{
    if (Data1.rsInventory.RecordCount() == 0) {
        conventions::MsgBox("There Are No Available Assets To Search...Please Add An Asset Before Continuing!",
            forms::box::Information);
        return;
    }
    auto& search = screen<frmSearch>();
    search.lblHead[0].setCaption("Search For Assets");
    search.cmbArea.setEnabled(true);
    search.txtKey.setText({});
    search.pbSearch.setValue(0);
    search.hide_Progress();
    search.show();
    search.ClearLevel = 1;
    search.clear_listboxes();
    FromMenu = true;
    hide();
}

void frmMain::cmdLeave_Click()
{
    conventions::confirm_Close(*this);
}

void frmMain::open_Area_Menu()
{
    hide();
    screen<frmAuto>().load_It();
}

void frmMain::Hide_Screens()
{
    for (forms::Form* made : forms::madeScreens())
        if (const auto* numbered = dynamic_cast<NumberedScreen*>(made); numbered && numbered->Number == CurrentScreen)
            made->hide();
}
