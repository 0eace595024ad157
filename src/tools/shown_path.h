// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDir>
#include <QString>

/// A path as it is shown in a line of a window: of a long one its end, which tells the most.
inline QString shownPath(const QString& path)
{
    constexpr qsizetype most = 60; // characters
    const QString native = QDir::toNativeSeparators(path);
    return native.size() > most ? QStringLiteral("...") + native.right(most) : native;
}
