// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/report/page_choice.h"

#include <QAbstractPrintDialog>

class QPrinter;

namespace report {

/// What the print dialogue of the toolkit is asked for.
struct PrintQuestion {
    QString name; ///< of the dialogue, for the system
    QAbstractPrintDialog::PrintDialogOptions choices; ///< beside the printer and the copies
    int pages = 1;
    bool hasFixedLayout = false; ///< so that neither margins nor a sheet laid sideways are offered
};

/// Asks for the printer, the copies and the pages. Nothing where the user cancels, or the window is gone by then.
std::optional<PageChoice> askForPrinter(QPrinter& printer, const PrintQuestion& question, QWidget* window);

} // namespace report
