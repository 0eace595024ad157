// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/frmMain.h"

#include "accounts/frmBank.h"
#include "accounts/frmEditBankBoxes.h"
#include "assets/frmAddUpDel.h"
#include "assets/frmAuto.h"
#include "assets/frmWar.h"
#include "frame/frmStartup.h"
#include "household/frmGenInfo.h"
#include "household/frmInsInfo.h"
#include "household/frmIntroduction.h"
#include "household/frmKeyboard.h"
#include "household/frmTotals.h"
#include "lists/frmAddField.h"
#include "lists/frmDelField.h"
#include "lists/frmEditCmbBoxes.h"
#include "lists/frmUpdate.h"
#include "reports/frmPrint.h"
#include "search/frmSearch.h"
#include "search/frmSearchResults.h"
#include "shared/conventions.h"

using conventions::hideIfMade;
using forms::screen;

namespace {

struct NumberedScreen {
    int number;
    void (*hide)();
};

constexpr NumberedScreen numberedScreens[] = {
    {1, hideIfMade<frmGenInfo>}, {2, hideIfMade<frmMain>}, {3, hideIfMade<frmPrint>}, {4, hideIfMade<frmSearch>},
    {5, hideIfMade<frmSearchResults>}, {6, hideIfMade<frmTotals>}, {7, hideIfMade<frmBank>},
    {8, hideIfMade<frmInsInfo>}, {9, hideIfMade<frmWar>}, {10, hideIfMade<frmAddUpDel>}, {11, hideIfMade<frmAddField>},
    {12, hideIfMade<frmEditCmbBoxes>}, {13, hideIfMade<frmAuto>}, {14, hideIfMade<frmUpdate>},
    {15, hideIfMade<frmEditBankBoxes>}, {16, hideIfMade<frmDelField>}, {17, hideIfMade<frmIntroduction>},
    {18, hideIfMade<frmKeyboard>}, {19, hideIfMade<frmStartup>}, // not the calendar, whose number it is: on purpose
};

} // namespace

frmMain::frmMain()
    : forms::Form("frmMain")
{
    look();
}

void frmMain::Form_Activate()
{
    frmStartup::CurrentScreen = 2;
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
    for (const NumberedScreen& numbered : numberedScreens)
        if (numbered.number == frmStartup::CurrentScreen)
            numbered.hide();
}
