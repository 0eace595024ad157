// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/report_titles.h"

ReportTitles& reportTitles()
{
    static ReportTitles titles;
    return titles;
}
