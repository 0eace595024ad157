// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/storage/schema.h"

/// The end of the data store, whatever ends the program.
namespace ending {

/// The status of a start that could not load the database. By it the launcher knows when to offer a restore.
inline constexpr int NotLoaded = 3;

/// Closes all views, which closes the file, and tells how many rows each table has.
std::vector<storage::TableCount> closeViews();

/// The backup of what `closeViews` has closed is made; a run-time report before says that it is missing.
void noteBackup();

/// Closes what is open where no failure can be handled any more: says on the error output what failed. Whether all is
/// well.
bool closeStore();

/// What the run-time report says of the data once the store is closed. That all is safe only where the file was read
/// through and holds each row; else what is wrong, and where file and backup lie.
QString whatIsKnown();

} // namespace ending
