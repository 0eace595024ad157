// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/reports.h"

#include "reports/data_report.h"
#include "reports/layouts.h"
#include "shared/conventions.h"

namespace reports {

DataReport& AssetReport()
{
    static DataReport the(
        {"AssetReport", "Asset Report", &ReportTitles::AssetReport, &DataStore::rsPrint, layouts::AssetReport});
    return the;
}

DataReport& CoverSheet()
{
    static DataReport the(
        {"CoverSheet", "Cover Sheet", &ReportTitles::CoverSheet, &DataStore::rsGeneral, layouts::CoverSheet});
    return the;
}

DataReport& FillOutForm()
{
    static DataReport the({"FillOutForm", "Asset Information Form", &ReportTitles::FillOutForm, &DataStore::rsGeneral,
        layouts::FillOutForm});
    return the;
}

bool report_Guard()
{
    if (!FillOutForm().isVisible() && !CoverSheet().isVisible() && !AssetReport().isVisible())
        return false;
    conventions::MsgBox("Please Close Print Window Before Selecting Another Report To Print!", forms::box::Exclamation);
    return true;
}

void show_AssetReport()
{
    AssetReport().show();
}

} // namespace reports
