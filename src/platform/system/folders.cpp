// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/folders.h"

#include <QDir>
#include <QStandardPaths>

namespace sys {

// ~/.local/share on Linux, ~/Library/Application Support on macOS. A relative XDG_DATA_HOME counts as none: it would
// lead to another place from each folder that the program is started in.
QString dataFolder(const QString& below)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    const QDir home = QDir::home();
    return QDir(QDir::isAbsolutePath(folder) ? folder : home.absoluteFilePath(QStringLiteral(".local/share")))
        .absoluteFilePath(below);
}

QString backupFolder(const QString& below)
{
    return QDir::home().absoluteFilePath(below);
}

} // namespace sys
