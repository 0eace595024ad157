// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/report/progress.h"

#include <QTemporaryDir>

#include <memory>

class QPrinter;

namespace report {

/// Asks the print service for its printers. Done where it has any; Failed where it has none, or doesn't answer for some
/// seconds; Cancelled where the user would rather not wait. The window takes no input meanwhile, but isn't frozen.
Outcome findPrinters(QWidget* window);

/// A file for the print service, which is there as long as somebody holds it.
class JobFile {
public:
    QString path() const { return folder_.filePath(QStringLiteral("job.pdf")); }

private:
    QTemporaryDir folder_;
};

/// Hands a PDF file to the print service as a job with what the user chose for the printer. Failed where the service
/// doesn't take it, which the toolkit's own printing keeps to itself; Unanswered where the user doesn't wait for it.
Outcome handOver(const QPrinter& printer, std::shared_ptr<const JobFile> file, QWidget* window);

} // namespace report
