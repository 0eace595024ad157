// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/household.h"

#include <QStringList>

#include <functional>

namespace exporting {

/// What becomes of an export that is there already.
enum class Former { Kept, Replaced };

/// Told how many of how many steps are done; false cancels.
using Progress = std::function<bool(int done, int all)>;

/// Writes a household into a folder: each table as comma-separated values, all of them as one JSON file with its
/// schema, the asset report and the cover sheet as PDF. The folder is there with all of it or not at all; a former
/// export stays until then. Its user alone can read it. Failures: Refusal.
void write(const Household& household, const QString& folder, Former former, const Progress& progress = {});

/// Whether something is in the way there, and all of it is a former export. Failures: Refusal, where the folder holds
/// something else, or is none.
bool isFormerExport(const QString& folder);

/// A folder below another one that nobody has yet, with the day in its name.
QString freshFolderIn(const QString& folder);

/// The names of the files of an export, and of that of a table.
QStringList fileNames();
QString csvFileOf(const storage::TableDefinition& table);

} // namespace exporting
