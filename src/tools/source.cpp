// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/source.h"

#include "core/places.h"
#include "platform/storage/file_lock.h"
#include "tools/backups.h"
#include "tools/exit_codes.h"

#include <QFileInfo>

QString sourceFile(const QString& named)
{
    const bool isPath = named.contains(u'/') || QFileInfo(named).isFile();
    QString file = named.isEmpty() ? places::databaseFile()
        : isPath                   ? named
                                   : backups::find(backups::all(), named).file;
    if (storage::isInUse(file))
        throw Refusal(exit_code::InUse,
            QStringLiteral("%1 is in use: close Kestrill first. A backup can be read at any time.").arg(file));
    return file;
}
