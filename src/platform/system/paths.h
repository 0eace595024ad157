// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/system/kind.h"

#include <QString>

namespace sys {

// Names go to the system byte for byte, also those that are no UTF-8: the texts here are those of `values::textOfName`,
// which the toolkit's own file classes don't know.

/// What lies there, behind links; a link that leads nowhere is `Other`. Looking opens nothing.
Kind kindOf(const QString& path);

/// Whether this user may read what lies there.
bool isReadable(const QString& path);

/// The same place from the root, without "." and "..". Failures: File, for an empty path, and where the folder that it
/// starts from is gone.
QString absolutePath(const QString& path);

/// The same file by a path without links; empty where there is none.
QString realPath(const QString& path);

} // namespace sys
