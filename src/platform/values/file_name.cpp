// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/values/file_name.h"

#include <QUtf8StringView>

#include <algorithm>

namespace values {

namespace {

constexpr ushort EscapedByte = 0xDC00;
constexpr qsizetype LongestCharacter = 4;

bool isEscapedByte(const QString& text, qsizetype at)
{
    const ushort unit = text[at].unicode();
    const bool isByte = unit >= EscapedByte + 0x80 && unit <= EscapedByte + 0xFF;
    return isByte && (at == 0 || !text[at - 1].isHighSurrogate());
}

// The bytes of the character that begins there; none where none does.
qsizetype lengthOfCharacter(QByteArrayView bytes)
{
    for (qsizetype length = 1; length <= std::min(LongestCharacter, bytes.size()); ++length)
        if (QUtf8StringView(bytes.data(), length).isValidUtf8())
            return length;
    return 0;
}

} // namespace

QString textOfName(QByteArrayView bytes)
{
    if (QUtf8StringView(bytes.data(), bytes.size()).isValidUtf8())
        return QString::fromUtf8(bytes);
    QString text;
    while (!bytes.isEmpty()) {
        const qsizetype length = lengthOfCharacter(bytes);
        if (length > 0)
            text += QString::fromUtf8(bytes.first(length));
        else
            text += QChar(static_cast<ushort>(EscapedByte + static_cast<uchar>(bytes.front())));
        bytes = bytes.sliced(std::max<qsizetype>(length, 1));
    }
    return text;
}

QByteArray bytesOfName(const QString& text)
{
    QByteArray bytes;
    qsizetype from = 0;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (!isEscapedByte(text, at))
            continue;
        bytes += QStringView(text).sliced(from, at - from).toUtf8();
        bytes += static_cast<char>(text[at].unicode() & 0xFF);
        from = at + 1;
    }
    return bytes + QStringView(text).sliced(from).toUtf8();
}

} // namespace values
