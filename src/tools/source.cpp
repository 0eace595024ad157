// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/source.h"

#include "data/places.h"
#include "platform/storage/file_lock.h"
#include "platform/system/paths.h"
#include "tools/backups.h"
#include "tools/exit_codes.h"

QString sourceFile(const QString& named)
{
    const sys::Kind kind = sys::kindOf(named);
    const bool isPath = named.contains(u'/') || kind == sys::Kind::File || kind == sys::Kind::Other;
    QString file = named.isEmpty() ? places::databaseFile()
        : isPath                   ? named
                                   : backups::find(backups::all(), named).file;
    if (storage::isInUse(file))
        throw Refusal(exit_code::InUse,
            QStringLiteral("%1 is in use: close Kestrill first. A backup can be read at any time.").arg(file));
    return file;
}
