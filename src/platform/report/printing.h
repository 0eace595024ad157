// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/report/pages.h"
#include "platform/report/progress.h"

class QWidget;

namespace report {

/// Asks for the printer, the pages and the copies, and prints. A long run can be cancelled. Failed where there is no
/// printer, and where the print service doesn't take the job.
Outcome print(const Pages& pages, int currentPage, QWidget* window);

} // namespace report
