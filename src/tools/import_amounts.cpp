// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/import_amounts.h"

#include "platform/values/digits.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

using values::Currency;

namespace importing {

namespace {

// Digits, points and commas are left, and a minus in front where it is below zero; nothing of what is no amount.
std::optional<QString> bare(const QString& text)
{
    static const QString currency = QStringLiteral("(?:[A-Za-z]{1,3}\\.?|[A-Za-z]{0,3}\\p{Sc})?\\s*");
    static const QRegularExpression form(QStringLiteral("^\\s*(?<before>[-(]?)\\s*") + currency
        + QStringLiteral("(?<within>-?)\\s*(?<digits>[0-9.,'\\p{Z}]*[0-9][.,]?)(?<behind>-?)\\s*") + currency
        + QStringLiteral("[-)]?\\s*$"));
    // A minus, dashes and an apostrophe as typesetters have them.
    QString plain = text;
    for (const char16_t dash : {u'\u2212', u'\u2013', u'\u2014'})
        plain.replace(QChar(dash), u'-');
    plain.replace(QChar(0x2019), u'\'');
    const QRegularExpressionMatch match = form.match(plain);
    if (!match.hasMatch())
        return {};
    static const QRegularExpression between(QStringLiteral("['\\p{Z}]"));
    QString digits = match.captured(u"digits").remove(between);
    const bool hasNoCents = digits.endsWith(u'.') || digits.endsWith(u','); // "50.-"
    if (hasNoCents)
        digits.chop(1);
    const bool isBelowZero = !match.captured(u"before").isEmpty() || !match.captured(u"within").isEmpty()
        || (!match.captured(u"behind").isEmpty() && !hasNoCents);
    return (isBelowZero ? QStringLiteral("-") : QString()) + digits;
}

bool isGrouped(const QString& whole, QChar separator)
{
    const QStringList groups = whole.split(separator);
    for (qsizetype i = 0; i < groups.size(); ++i) {
        const bool isRight = i == 0 ? groups[i].size() <= 3 : groups[i].size() == 3;
        if (!values::digits::areAll(groups[i]) || (groups.size() > 1 && !isRight))
            return false;
    }
    return true;
}

struct Told {
    DecimalSign sign = DecimalSign::Unknown;
    bool isSure = true;
};

// The sign that stands before the cents, whatever the others are like. Three digits behind a single sign are thousands:
// there is no tenth of a cent; but a program may write it.
Told told(const QString& digits)
{
    const qsizetype point = digits.lastIndexOf(u'.');
    const qsizetype comma = digits.lastIndexOf(u',');
    if (point >= 0 && comma >= 0)
        return {point > comma ? DecimalSign::Point : DecimalSign::Comma};
    const qsizetype at = std::max(point, comma);
    if (at < 0)
        return {};
    const DecimalSign sign = point >= 0 ? DecimalSign::Point : DecimalSign::Comma;
    const DecimalSign other = point >= 0 ? DecimalSign::Comma : DecimalSign::Point;
    const bool isRepeated = digits.count(digits[at]) > 1;
    if (isRepeated && !isGrouped(digits, digits[at]))
        return {};
    const bool isThousands = isRepeated || digits.size() - at - 1 == 3;
    return {isThousands ? other : sign, isRepeated || !isThousands};
}

AmountRead amountOf(const QString& digits, DecimalSign sign)
{
    const QChar decimal = sign == DecimalSign::Comma ? u',' : u'.';
    const QChar grouping = sign == DecimalSign::Comma ? u'.' : u',';
    const QString whole = digits.section(decimal, 0, 0);
    const QString cents = digits.section(decimal, 1);
    if (digits.count(decimal) > 1 || !values::digits::areAll(cents) || !isGrouped(whole, grouping))
        return {{}, QStringLiteral("It Has Another Decimal Sign Than The Others")};
    if (cents.size() > 2 && !QStringView(cents).sliced(2).toString().remove(u'0').isEmpty())
        return {{}, QStringLiteral("It Has Parts Of A Cent")};
    const auto amount = Currency::tryParse(QString(whole).remove(grouping) + u'.' + cents.left(2));
    return amount ? AmountRead{amount, {}} : AmountRead{{}, QStringLiteral("It Is Too Large")};
}

} // namespace

std::optional<DecimalSign> decimalSignNamed(const QString& word)
{
    if (word == "point")
        return DecimalSign::Point;
    return word == "comma" ? std::optional(DecimalSign::Comma) : std::nullopt;
}

AmountReader::AmountReader(const QStringList& column)
{
    std::array<int, 2> sure{};
    std::array<int, 2> likely{};
    for (const QString& text : column) {
        const std::optional<QString> digits = bare(text);
        const Told seen = digits ? told(*digits) : Told();
        if (seen.sign != DecimalSign::Unknown)
            ++(seen.isSure ? sure : likely)[seen.sign == DecimalSign::Comma];
    }
    const auto& [points, commas] = sure == std::array<int, 2>{} ? likely : sure;
    const bool isTold = sure == std::array<int, 2>{} ? points == 0 || commas == 0 : points != commas;
    if (isTold && points != commas)
        sign_ = points > commas ? DecimalSign::Point : DecimalSign::Comma;
    isAmbiguous_ = sign_ == DecimalSign::Unknown && points + commas > 0;
}

AmountRead AmountReader::read(const QString& text) const
{
    const std::optional<QString> digits = bare(text);
    if (!digits)
        return {{}, QStringLiteral("It Is No Amount")};
    if (digits->startsWith(u'-'))
        return {{}, QStringLiteral("It Is Below Zero")};
    if (sign_ != DecimalSign::Unknown)
        return amountOf(*digits, sign_);
    const bool needsSign = digits->contains(u'.') || digits->contains(u',');
    if (needsSign)
        return {{}, QStringLiteral("It Can Be Read In Two Ways: The Decimal Sign Must Be Told")};
    return amountOf(*digits, DecimalSign::Point);
}

} // namespace importing
