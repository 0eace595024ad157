// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/places.h"

#include "platform/system/folders.h"

namespace places {

namespace {

struct Folders {
    QString database;
    QString backup;
    QString earlierBackups;
};

// One spelling of each name, everywhere: most file systems tell "C_db" from "C_DB".
Folders& folders()
{
    static Folders folders{sys::dataFolder(QStringLiteral("KTL/C_db")), sys::backupFolder(QStringLiteral("Backup")),
        sys::dataFolder(QStringLiteral("KTL-backups"))};
    return folders;
}

} // namespace

QString databaseFolder()
{
    return folders().database;
}

QString databaseFile()
{
    return folders().database + QStringLiteral("/KTL.db");
}

QString backupFolder()
{
    return folders().backup;
}

QString earlierBackupsFolder()
{
    return folders().earlierBackups;
}

void setFolders(const QString& database, const QString& backup)
{
    folders() = {database, backup, database + QStringLiteral("-backups")};
}

} // namespace places
