// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <algorithm>

/// The beginning of a text for a line on a terminal, which what stands in a file may be made to upset.
inline QString printable(const QString& text, qsizetype most = 60)
{
    QString shown = text.left(most);
    std::replace_if(
        shown.begin(), shown.end(), [](QChar character) { return !character.isPrint() && !character.isSurrogate(); },
        QChar(u'?'));
    return shown;
}
