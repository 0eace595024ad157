// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/report/pages.h"
#include "platform/report/progress.h"

namespace report {

/// Writes a report as a PDF file: fonts embedded, its text to be searched. It is written beside the target and takes
/// its name when it is whole, so that an older file stays until then. Failed where the system refuses; `reason` takes
/// why.
Outcome savePdf(const Pages& pages, const QString& path, const Progress& progress = {}, QString* reason = nullptr);

/// The same with some of its pages, counted from 0, in this order.
Outcome savePdf(const Pages& pages, const std::vector<int>& chosen, const QString& path, const Progress& progress = {},
    QString* reason = nullptr);

} // namespace report
