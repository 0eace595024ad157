// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/report/layout.h"
#include "platform/report/rows.h"

#include <memory>

namespace report {

/// What a report is called.
struct Names {
    QString title; ///< of the window
    QString document; ///< of a file or a print job
    QString author;
    QString file; ///< the name suggested for a file, without its ending
};

/// When a report was opened.
struct Moment {
    QString date;
    QString time;
};

/// The moment it is.
Moment now();

/// A report that is open: its layout and what it was opened with.
struct Document {
    Layout layout;
    std::shared_ptr<const Rows> rows;
    Names names;
    Moment moment = now();
};

} // namespace report
