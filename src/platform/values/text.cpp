// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/values/text.h"

#include <algorithm>

namespace values {

namespace {

constexpr bool isAscii(QChar c)
{
    return c < u'\x80';
}

constexpr QChar upperAscii(QChar c)
{
    return c >= u'a' && c <= u'z' ? QChar(c.unicode() - u'a' + u'A') : c;
}

} // namespace

QString upper(const QString& text)
{
    return text.toUpper();
}

bool upperAscii(std::string_view text, char* upper)
{
    unsigned char all = 0;
    for (const char letter : text) {
        all |= static_cast<unsigned char>(letter);
        const bool isSmall = letter >= 'a' && letter <= 'z';
        *upper++ = static_cast<char>(letter - ('a' - 'A') * static_cast<int>(isSmall));
    }
    return all < 0x80;
}

bool equalUpper(const QString& a, const QString& b)
{
    const qsizetype common = std::min(a.size(), b.size());
    qsizetype at = 0;
    for (; at < common && isAscii(a[at]) && isAscii(b[at]); ++at) {
        if (upperAscii(a[at]) != upperAscii(b[at])) {
            return false;
        }
    }
    // Upper-casing takes each character by itself, so equal beginnings can be left out.
    return a.sliced(at).toUpper() == b.sliced(at).toUpper();
}

} // namespace values
