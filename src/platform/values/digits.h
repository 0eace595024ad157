// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>
#include <QtNumeric>

#include <algorithm>
#include <optional>

// What the readers of numbers, amounts and dates share. Qt's own readers are passed by: they take blanks, plus signs
// and the digits of other scripts.
namespace values::digits {

/// '0' to '9' only.
constexpr bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

/// True of the empty text, too.
inline bool areAll(QStringView text)
{
    return std::all_of(text.begin(), text.end(), isDigit);
}

/// Drops `c` from the front of `text`; false where `text` begins with something else.
inline bool take(QStringView& text, QChar c)
{
    const bool found = text.startsWith(c);
    text = text.sliced(found ? 1 : 0);
    return found;
}

/// Digits, with a comma between any two of them or none: people change a digit of "250,000" and leave "1250,000" or
/// "50,00". True of the empty text, too.
inline bool areGrouped(QStringView text)
{
    for (const QStringView group : text.tokenize(u',')) {
        if (group.isEmpty() || !areAll(group))
            return text.isEmpty();
    }
    return true;
}

/// The number whose decimal digits are those of `value` and then `digits`, whose commas count for nothing; nothing
/// where it passes 64 bits.
inline std::optional<quint64> append(std::optional<quint64> value, QStringView digits)
{
    for (const QChar digit : digits) {
        if (digit == u',')
            continue;
        if (!value || qMulOverflow(*value, quint64(10), &*value)
            || qAddOverflow(*value, quint64(digit.unicode() - u'0'), &*value)) {
            return std::nullopt;
        }
    }
    return value;
}

} // namespace values::digits
