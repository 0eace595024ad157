// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/import_amounts.h"

#include "platform/values/digits.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <array>

using values::Currency;

namespace importing {

namespace {

// Blanks, a minus, dashes and an apostrophe as typesetters have them become those of a keyboard.
QString plainOf(QString text)
{
    for (QChar& character : text)
        if (character.isSpace())
            character = u' ';
    for (const char16_t dash : {u'\u2212', u'\u2013', u'\u2014'})
        text.replace(QChar(dash), u'-');
    return text.replace(QChar(0x2019), u'\'');
}

// Digits, points and commas are left, and a minus in front where it is below zero; nothing of what is no amount. Blanks
// and apostrophes stand between thousands alone. What stands behind may be a multiple or a hundredth instead of a
// currency, or a credit: "5k", "99p".
std::optional<QString> bare(const QString& text)
{
    static const QString currency = QStringLiteral("(?:\\p{L}{1,3}\\.?|\\p{L}{0,3}\\p{Sc})?\\s*");
    static const QString number =
        QStringLiteral("(?<digits>[0-9]{1,3}(?:[' ][0-9]{3})+(?:[.,][0-9]*)?|[0-9.,]*[0-9][.,]?)");
    static const QString noCurrency =
        QStringLiteral("(?!(?i:[kmcp]|ct|cr|th|tsd|mio|mln|mn|bn|mrd|ea|pcs|st)(?!\\p{L}))");
    static const QRegularExpression form(QStringLiteral("^\\s*(?<before>[-(]?)\\s*") + currency
        + QStringLiteral("(?<within>-?)\\s*") + number + QStringLiteral("(?<behind>-?)\\s*") + noCurrency + currency
        + QStringLiteral("[-)]?\\s*$"));
    const QRegularExpressionMatch match = form.match(plainOf(text));
    if (!match.hasMatch())
        return {};
    static const QRegularExpression between(QStringLiteral("[' ]"));
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
    if (groups.size() > 1 && (groups[0].isEmpty() || groups[0].startsWith(u'0')))
        return false;
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
// there is no tenth of a cent; but a program may write it, which is sure where they can't be thousands.
Told told(QString digits)
{
    digits.remove(u'-');
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
    const bool isThousands = isRepeated || (digits.size() - at == 4 && isGrouped(digits, digits[at]));
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

bool isAmount(const QString& text)
{
    return bare(text).has_value();
}

QStringList currenciesIn(const QStringList& amounts)
{
    static const QHash<QString, QString> signs{{"USD", "$"}, {"US$", "$"}, {"EUR", "\u20AC"}, {"GBP", "\u00A3"}};
    constexpr qsizetype most = 8;
    QStringList currencies;
    for (const QString& text : amounts) {
        QString currency;
        for (const QChar character : text)
            if (character.isLetter() || character.category() == QChar::Symbol_Currency)
                currency += character.toUpper();
        currency = signs.value(currency, currency);
        const bool isNew = !currency.isEmpty() && currencies.size() < most && !currencies.contains(currency);
        if (isNew && isAmount(text))
            currencies += currency;
    }
    return currencies;
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
