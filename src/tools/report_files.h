// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/report/pdf.h"
#include "tools/household.h"

#include <QStringList>

/// A report of a household, ready to be written as a file.
struct ReportFile {
    QString name;
    std::shared_ptr<const report::Pages> pages;
};

/// The asset report of all assets and the cover sheet.
std::vector<ReportFile> reportsOf(const Household& household);

QStringList reportFileNames();
