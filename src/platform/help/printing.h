// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/report/progress.h"

class QTextBrowser;

namespace help {

/// Asks for the printer and prints the page that is shown, in type of the usual size. Failed as report::print.
report::Outcome print(QTextBrowser& page, QWidget* window);

} // namespace help
