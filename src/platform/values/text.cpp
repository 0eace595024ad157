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

// By rank and, within it, by code.
constexpr int placeOf(QChar folded)
{
    constexpr int rank = 0x10000;
    const bool isLetter =
        isAscii(folded) ? folded >= u'a' && folded <= u'z' : folded.isLetter() || folded.isSurrogate();
    const bool isDigit = isAscii(folded) ? folded >= u'0' && folded <= u'9' : folded.isDigit();
    return folded.unicode() + (isLetter ? 2 * rank : isDigit ? rank : 0);
}

constexpr QChar folded(QChar c)
{
    return !isAscii(c) ? c.toCaseFolded() : c >= u'A' && c <= u'Z' ? QChar(c.unicode() - u'A' + u'a') : c;
}

} // namespace

QString upper(const QString& text)
{
    return text.toUpper();
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

int compareNames(const QString& a, const QString& b)
{
    const qsizetype common = std::min(a.size(), b.size());
    for (qsizetype at = 0; at < common; ++at) {
        const QChar left = folded(a[at]);
        const QChar right = folded(b[at]);
        if (left != right)
            return placeOf(left) - placeOf(right);
    }
    return static_cast<int>(a.size() - b.size());
}

} // namespace values
