// SPDX-License-Identifier: GPL-3.0-or-later
#include "shared/ways.h"

#include "accounts/frmEditBankBoxes.h"
#include "assets/frmAddUpDel.h"
#include "assets/frmAuto.h"
#include "frame/frmMain.h"
#include "frame/frmProgress.h"
#include "household/frmGenInfo.h"
#include "lists/frmEditCmbBoxes.h"
#include "reports/frmPrint.h"
#include "reports/reports.h"
#include "search/frmSearch.h"

using forms::screen;

MainMenu& ways::frmMain()
{
    return screen<::frmMain>();
}

AreaMenu& ways::frmAuto()
{
    return screen<::frmAuto>();
}

AssetScreen& ways::frmAddUpDel()
{
    return screen<::frmAddUpDel>();
}

OptionMenu& ways::frmEditCmbBoxes()
{
    return screen<::frmEditCmbBoxes>();
}

SearchFields& ways::frmSearch()
{
    return screen<::frmSearch>();
}

PrintMenu& ways::frmPrint()
{
    return screen<::frmPrint>();
}

NumberedScreen& ways::frmGenInfo()
{
    return screen<::frmGenInfo>();
}

AccountMenu& ways::frmEditBankBoxes()
{
    return screen<::frmEditBankBoxes>();
}

forms::Form& ways::frmProgress()
{
    return screen<::frmProgress>();
}

void ways::hide_frmProgress()
{
    for (forms::Form* made : forms::madeScreens())
        if (dynamic_cast<::frmProgress*>(made))
            made->hide();
}

bool ways::report_Guard()
{
    return reports::report_Guard();
}

void ways::show_AssetReport()
{
    reports::show_AssetReport();
}
