// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/frmStartup.h"

#include "data/data_store.h"
#include "data/places.h"
#include "frame/already_running.h"
#include "frame/ending.h"
#include "frame/frmMain.h"
#include "household/frmIntroduction.h"
#include "platform/values/text.h"
#include "reports/report_titles.h"
#include "shared/conventions.h"

#include <limits>

using forms::screen;

std::function<std::vector<sys::Process>()> frmStartup::list_Processes = [] { return sys::runningProcesses(); };

namespace {

// What is said where the policy expires in so many days.
struct PolicyAlert {
    int fromDays;
    int toDays;
    const char* text;
};

constexpr PolicyAlert policyAlerts[] = {
    {std::numeric_limits<qint16>::min(), -1,
        "Your Insurance Policy Has Expired...Please Renew Your Insurance Policy So You Can Ensure Coverage In The "
        "Event "
        "Of Theft Or Disaster!"},
    {0, 0, "    Your Insurance Policy Expires Today! "},
    {1, 1, "   Your Insurance Policy Expires In 1 Day!"},
    {2, 30, "Your Insurance Policy Expires In %1 Days!"},
};

} // namespace

frmStartup::frmStartup()
    : NumberedScreen("frmStartup", 19) // not the calendar, whose number it is: on purpose
{
    setTitle(conventions::Title);
}

void frmStartup::Form_Load()
{
    try {
        start_Up();
    } catch (const std::exception&) {
        // On purpose the database is blamed for whatever failed.
        conventions::MsgBox("Unable To Load Database...Closing Program!", forms::box::Stop);
        forms::endProcess(ending::NotLoaded);
    }
}

void frmStartup::start_Up()
{
    check_Already_Running();
    CurrentScreen = 20;
    open_Tables();
    open_First_Screen();
    set_Report_Titles();
}

void frmStartup::check_Already_Running()
{
    const sys::Process self = sys::thisProcess();
    if (countRunning(list_Processes(), self) < 2)
        return;
    conventions::MsgBox("Kestrill Is Already Running!", forms::box::Exclamation);
    forms::endProcess(1);
}

void frmStartup::open_Tables()
{
    useDatabase(places::databaseFile());
    Data1.rsGeneral.Open();
    Data1.rsBank.Open();
    Data1.rsIndoor.Open();
    Data1.rsMobile.Open();
    Data1.rsInventory.Open();
    Data1.rsOutdoor.Open();
    Data1.rsPrint.Open();
}

void frmStartup::open_First_Screen()
{
    hide();
    if (Data1.rsGeneral.Fields(General::Introduced) != "1") {
        screen<frmIntroduction>().show();
        return;
    }
    check_Policy_Alert();
    screen<frmMain>().show();
}

void frmStartup::check_Policy_Alert()
{
    if (values::upper(Data1.rsGeneral.Fields(General::PolicyNotify).text()) != "YES")
        return;
    const values::Date expiration = values::Date::parse(Data1.rsGeneral.Fields(General::PolicyExpiration).text());
    const values::Integer days = expiration - values::Today();
    for (const PolicyAlert& alert : policyAlerts)
        if (alert.fromDays <= days && days <= alert.toDays)
            conventions::MsgBox(QString(alert.text).replace("%1", QString::number(days)), forms::box::Information);
}

void frmStartup::set_Report_Titles()
{
    reportTitles().AssetReport = "Asset Report - Kestrill by Brindlewick Software";
    reportTitles().CoverSheet = "Cover Sheet - Kestrill by Brindlewick Software";
    reportTitles().FillOutForm = "Asset Information Form - Kestrill by Brindlewick Software";
}
