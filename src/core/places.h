// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Where the household's data lies. Nothing configures it: the paths hang on the operating system and the user alone.
namespace places {

QString databaseFolder();
QString databaseFile();
QString backupFolder();

/// Other folders for the rest of the run, for tests.
void setFolders(const QString& database, const QString& backup);

} // namespace places
