// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/folders.h"

#include <QDir>
#include <QStandardPaths>

namespace sys {

#ifdef Q_OS_WIN

QString dataFolder(const QString& below)
{
    return QStringLiteral("C:/Program Files/") + below;
}

QString backupFolder(const QString& below)
{
    return QStringLiteral("C:/") + below;
}

#else

// ~/.local/share on Linux, ~/Library/Application Support on macOS.
QString dataFolder(const QString& below)
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)).absoluteFilePath(below);
}

QString backupFolder(const QString& below)
{
    return QDir::home().absoluteFilePath(below);
}

#endif

} // namespace sys
