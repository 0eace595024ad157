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

std::string upperUtf8(std::string_view utf8)
{
    const auto isPlain = [](char byte) { return static_cast<unsigned char>(byte) < 0x80; };
    if (!std::ranges::all_of(utf8, isPlain))
        return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size())).toUpper().toStdString();
    std::string text(utf8);
    for (char& letter : text)
        letter = static_cast<char>(letter >= 'a' && letter <= 'z' ? letter - 'a' + 'A' : letter);
    return text;
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
