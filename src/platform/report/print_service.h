// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

class QPrinter;

namespace report {

/// What the print dialogue keeps for the print service by itself: names and values in turn.
QStringList keptForService(const QPrinter& printer);

/// Hands a PDF file to the print service as a job with what the user chose for the printer. False where the service
/// doesn't take it, which the toolkit's own printing keeps to itself.
bool handOver(const QPrinter& printer, const QString& file);

} // namespace report
