// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/report/pages.h"
#include "platform/report/progress.h"

class QWidget;

namespace report {

/// How printing came out, and the file where the user has had it printed to one.
struct Printing {
    Outcome outcome;
    QString file{};
};

/// Asks for the printer, the pages and the copies, and prints. A long run can be cancelled. Failed where there is no
/// printer, and where the print service doesn't answer or doesn't take the job. The window may go meanwhile, and with
/// it the pages.
Printing print(const Pages& pages, int currentPage, QWidget* window);

} // namespace report
