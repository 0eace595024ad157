// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/values/currency.h"

#include "platform/values/digits.h"
#include "platform/values/failure.h"

#include <limits>

namespace values {

namespace {

struct Amount {
    bool negative;
    QStringView whole; ///< with its commas
    QStringView decimals;
};

/// Takes the brackets, the dollar sign and the minus off; nothing where they don't fit together.
std::optional<bool> takeSigns(QStringView& text)
{
    int signs = 0;
    if (digits::take(text, u'(')) {
        if (!text.endsWith(u')')) {
            return std::nullopt;
        }
        text.chop(1);
        ++signs;
    }
    signs += digits::take(text, u'-');
    digits::take(text, u'$');
    signs += digits::take(text, u'-');
    return signs < 2 ? std::optional(signs == 1) : std::nullopt;
}

std::optional<Amount> split(QStringView text)
{
    const std::optional<bool> negative = takeSigns(text);
    if (!negative) {
        return std::nullopt;
    }
    const qsizetype point = text.indexOf(u'.');
    const Amount amount{
        *negative, point < 0 ? text : text.first(point), point < 0 ? QStringView() : text.sliced(point + 1)};
    const bool reads = digits::areGrouped(amount.whole) && digits::areAll(amount.decimals)
        && amount.decimals.size() <= 4 && !(amount.whole.isEmpty() && amount.decimals.isEmpty());
    return reads ? std::optional(amount) : std::nullopt;
}

/// In ten-thousandths; nothing where it doesn't fit.
std::optional<qint64> countOf(const Amount& amount)
{
    const QStringView zeros = QStringView(u"0000").sliced(amount.decimals.size());
    const auto size = digits::append(digits::append(digits::append(0, amount.whole), amount.decimals), zeros);
    constexpr quint64 largest = std::numeric_limits<qint64>::max();
    if (!size || *size > largest + amount.negative) {
        return std::nullopt;
    }
    return static_cast<qint64>(amount.negative ? 0 - *size : *size);
}

QString grouped(QString whole)
{
    for (qsizetype comma = whole.size() - 3; comma > 0; comma -= 3) {
        whole.insert(comma, u',');
    }
    return whole;
}

/// Of an amount without its sign, halves away from zero.
quint64 centsOf(qint64 tenThousandths)
{
    const auto bits = static_cast<quint64>(tenThousandths);
    return ((tenThousandths < 0 ? 0 - bits : bits) + 50) / 100;
}

RuntimeFailure overflow(const QString& detail)
{
    return RuntimeFailure(FailureKind::Overflow, detail);
}

} // namespace

Currency Currency::parse(const QString& text)
{
    const std::optional<Amount> amount = split(text);
    if (!amount) {
        throw mismatch(text, QStringLiteral("an amount of money"));
    }
    const std::optional<qint64> count = countOf(*amount);
    if (!count) {
        throw overflow(u'"' + text + QStringLiteral("\" is too large an amount of money"));
    }
    return Currency(*count);
}

std::optional<Currency> Currency::tryParse(const QString& text)
{
    const std::optional<Amount> amount = split(text);
    const std::optional<qint64> count = amount ? countOf(*amount) : std::nullopt;
    return count ? std::optional(Currency(*count)) : std::nullopt;
}

QString Currency::toText() const
{
    const quint64 cents = centsOf(count_);
    const QString decimals = QString::number(cents % 100).rightJustified(2, u'0');
    const QString text = u'$' + grouped(QString::number(cents / 100)) + u'.' + decimals;
    return count_ < 0 && cents > 0 ? u'(' + text + u')' : text;
}

Currency Currency::rounded() const
{
    const auto size = static_cast<qint64>(centsOf(count_) * 100); // the cents next to the limits are below them
    return Currency(count_ < 0 ? -size : size);
}

Currency Currency::operator-() const
{
    return Currency() - *this;
}

Currency& Currency::operator+=(Currency other)
{
    qint64 sum = 0;
    if (qAddOverflow(count_, other.count_, &sum)) {
        throw overflow(QStringLiteral("a sum of money"));
    }
    count_ = sum;
    return *this;
}

Currency& Currency::operator-=(Currency other)
{
    qint64 difference = 0;
    if (qSubOverflow(count_, other.count_, &difference)) {
        throw overflow(QStringLiteral("a difference of money"));
    }
    count_ = difference;
    return *this;
}

QString groupedByThrees(const QString& text)
{
    const std::optional<Amount> amount = split(text);
    if (!amount || !amount->whole.contains(u',')) {
        return text;
    }
    const qsizetype begin = amount->whole.data() - text.data();
    return QString(text).replace(begin, amount->whole.size(), grouped(amount->whole.toString().remove(u',')));
}

QString currencyFormat(const QString& text)
{
    const std::optional<Currency> amount = Currency::tryParse(text);
    return amount ? amount->toText() : text;
}

} // namespace values
