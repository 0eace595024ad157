// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The titles of the windows of the three reports. Until the start has set them they are those of the layouts.
struct ReportTitles {
    QString AssetReport = QStringLiteral("Kestrill by Brindlewick Software");
    QString CoverSheet;
    QString FillOutForm = QStringLiteral("Asset Information Form");
};

ReportTitles& reportTitles();
