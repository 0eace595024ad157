// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Where the household's data lies. Nothing configures it: the paths hang on the operating system and the user alone.
namespace places {

QString databaseFolder();
QString databaseFile();

/// What follows the database's name while a restore prepares the file that will bear it. A restore that was killed may
/// leave files that begin so, which belong into no backup.
inline const QString RestoringSuffix = QStringLiteral(".restoring");

QString backupFolder();

/// Where the backups go that later ones have replaced. Neither the data folder, which each close copies, nor the backup
/// folder, which is the user's.
QString earlierBackupsFolder();

/// Other folders for the rest of the run, for tests.
void setFolders(const QString& database, const QString& backup);

} // namespace places
