// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSaveFile>

namespace report {

/// Gives a file its name, unless a byte of it could not be written. The toolkit's own `commit` doesn't hear of what
/// fails while the last of its buffer is written, and would put a part of the file in place of the whole.
inline bool commitWhole(QSaveFile& file)
{
    if (!file.flush())
        file.cancelWriting();
    return file.commit();
}

/// Why a file could not be written. The toolkit has no words for a write of which the system took a part, which it does
/// where the disk is full.
inline QString reasonOf(const QSaveFile& file)
{
    const bool isTold = file.error() != QFileDevice::NoError && file.error() != QFileDevice::ResourceError
        && file.errorString() != "Unknown error";
    return isTold ? file.errorString() : QStringLiteral("the disk is full");
}

} // namespace report
