// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/report/printing.h"

class QPrinter;
class QTextBrowser;

namespace help {

/// Asks for the printer and prints the page that is shown, in type of the usual size. Failed as report::print.
report::Printing print(QTextBrowser& page, QWidget* window);

/// The same for a printer that has been chosen, or into the file that was chosen in its place.
report::Printing printTo(const QPrinter& chosen, QTextBrowser& page);

} // namespace help
