// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace sys {

/// The absolute path of the folder in which a program keeps the user's data. `below` is the program's own part of it,
/// with forward slashes. Nothing is created.
QString dataFolder(const QString& below);

/// The absolute path of the folder that takes the copy of the user's data: a place where the user finds it without
/// knowing the program. `below` is the program's own part of it. Nothing is created.
QString backupFolder(const QString& below);

} // namespace sys
