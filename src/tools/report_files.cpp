// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/report_files.h"

#include "reports/layouts.h"
#include "reports/report_author.h"
#include "reports/snapshot_rows.h"
#include "shared/conventions.h"

namespace {

struct Plan {
    const char* document;
    const char* table;
    report::Layout (*layout)();
};

// The asset report knows the columns of the staging table, which are the inventory's first.
constexpr Plan plans[] = {
    {"Asset Report", "Inventory", layouts::AssetReport},
    {"Cover Sheet", "Personal_Info", layouts::CoverSheet},
};

QString fileNameOf(const Plan& plan)
{
    return QString::fromUtf8(plan.document) + QStringLiteral(".pdf");
}

ReportFile reportOf(const Plan& plan, const Household& household)
{
    auto document = std::make_shared<report::Document>();
    document->layout = plan.layout();
    document->rows = std::make_shared<SnapshotRows>(household.table(plan.table));
    const QString name = QString::fromUtf8(plan.document);
    document->names = {name + QStringLiteral(" - ") + conventions::Footer, name,
        report_Author(household.table("Personal_Info")), name};
    return {fileNameOf(plan), std::make_shared<report::Pages>(std::move(document), report::localPaper())};
}

} // namespace

std::vector<ReportFile> reportsOf(const Household& household)
{
    std::vector<ReportFile> reports;
    for (const Plan& plan : plans)
        reports.push_back(reportOf(plan, household));
    return reports;
}

QStringList reportFileNames()
{
    QStringList names;
    for (const Plan& plan : plans)
        names.append(fileNameOf(plan));
    return names;
}
