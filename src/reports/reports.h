// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class DataReport;

/// The three reports, as the screens see them.
namespace reports {

DataReport& AssetReport();
DataReport& CoverSheet();
DataReport& FillOutForm();

/// True, after telling the user, while the window of a report is open: it must not change under the reader.
bool report_Guard();

/// Opens the asset report on the rows of the staging table.
void show_AssetReport();

} // namespace reports
