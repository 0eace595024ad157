// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/report/document.h"

namespace report {

/// True where a report has fields, and so something for a spreadsheet.
bool hasTable(const Document& document);

/// Writes the rows of a report as comma-separated values in UTF-8: a line of headings, then a line for each row,
/// amounts as plain numbers, what a spreadsheet would take for a formula behind an
/// apostrophe. Written and refused as `savePdf` does.
bool saveCsv(const Document& document, const QString& path);

} // namespace report
