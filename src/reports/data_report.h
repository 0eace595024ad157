// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/data_store.h"
#include "platform/report/layout.h"
#include "platform/report/preview.h"
#include "reports/report_titles.h"

#include <QPointer>

/// One of the three reports: what it is made of, and its window while that is open.
class DataReport {
public:
    struct Plan {
        const char* name; ///< of its window
        const char* document; ///< what its files and print jobs are called
        QString ReportTitles::*title;
        storage::TableView DataStore::*view;
        report::Layout (*layout)();
    };

    explicit DataReport(const Plan& plan)
        : plan_(plan)
    {
    }

    /// Opens the window on the rows that the report's view has now; what happens to them later doesn't reach it.
    void show();

    bool isVisible() const { return window_ && window_->isVisible(); }

private:
    static void DataReport_Error();

    Plan plan_;
    QPointer<report::Preview> window_;
};
