// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/data_report.h"

#include "platform/values/date.h"
#include "reports/report_author.h"
#include "reports/snapshot_rows.h"
#include "shared/conventions.h"

namespace {

// Files sort by their day.
QString fileName(const char* document)
{
    const values::Date today = values::Today();
    return QStringLiteral("%1 %2-%3-%4")
        .arg(document)
        .arg(today.year(), 4, 10, QChar(u'0'))
        .arg(today.month(), 2, 10, QChar(u'0'))
        .arg(today.day(), 2, 10, QChar(u'0'));
}

} // namespace

void DataReport::show()
{
    auto document = std::make_shared<report::Document>();
    document->layout = plan_.layout();
    document->rows = std::make_shared<SnapshotRows>((Data1.*plan_.view).snapshot());
    document->names = {reportTitles().*plan_.title, plan_.document, report_Author(Data1.rsGeneral.snapshot()),
        fileName(plan_.document)};
    delete window_;
    window_ = new report::Preview(plan_.name, std::move(document), DataReport_Error);
    window_->open();
}

void DataReport::DataReport_Error()
{
    conventions::MsgBox("A Printing Error Has Occurred..."
                        "You May Not Have A Printer Installed Or Is Installed Incorrectly.",
        forms::box::Stop);
}
