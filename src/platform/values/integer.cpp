// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/values/integer.h"

#include "platform/values/digits.h"
#include "platform/values/failure.h"

#include <limits>

namespace values {

namespace {

struct Decimal {
    bool negative;
    QStringView whole;
    QStringView fraction;
};

std::optional<Decimal> split(QStringView text)
{
    text = text.trimmed();
    const bool negative = digits::take(text, u'-');
    if (!negative) {
        digits::take(text, u'+');
    }
    const qsizetype point = text.indexOf(u'.');
    const Decimal number{
        negative, point < 0 ? text : text.first(point), point < 0 ? QStringView() : text.sliced(point + 1)};
    const bool reads = digits::areGrouped(number.whole) && digits::areAll(number.fraction)
        && !(number.whole.isEmpty() && number.fraction.isEmpty());
    return reads ? std::optional(number) : std::nullopt;
}

bool roundsUp(QStringView fraction, bool odd)
{
    while (fraction.endsWith(u'0')) {
        fraction.chop(1);
    }
    const int againstHalf = fraction.compare(u"5");
    return againstHalf > 0 || (againstHalf == 0 && odd);
}

} // namespace

qint16 Integer::overflow()
{
    throw RuntimeFailure(FailureKind::Overflow, QStringLiteral("a number beyond 16 bits"));
}

Integer Integer::fromText(const QString& text)
{
    return wholeNumber(text);
}

qint32 wholeNumber(const QString& text)
{
    const std::optional<Decimal> number = split(text);
    if (!number) {
        throw mismatch(text, QStringLiteral("a whole number"));
    }
    constexpr quint64 tooLarge = quint64(std::numeric_limits<qint32>::max()) + 2;
    const quint64 whole = std::min(digits::append(0, number->whole).value_or(tooLarge), tooLarge);
    const qint64 size = qint64(whole) + roundsUp(number->fraction, whole % 2 == 1);
    const qint64 value = number->negative ? -size : size;
    if (!std::in_range<qint32>(value)) {
        throw RuntimeFailure(FailureKind::Overflow, u'"' + text + QStringLiteral("\" is beyond 32 bits"));
    }
    return qint32(value);
}

} // namespace values
