// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The three reports, as the screens see them.
namespace reports {

/// True, after telling the user, while the window of a report is open: it must not change under the reader.
bool report_Guard();

/// Opens the asset report on the rows of the staging table.
void show_AssetReport();

} // namespace reports
