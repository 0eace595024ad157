// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/import_dates.h"

#include "data/asset_rules.h"

#include <QDate>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

using values::Date;

namespace importing {

namespace {

constexpr DateOrder orders[] = {DateOrder::MonthFirst, DateOrder::DayFirst, DateOrder::YearFirst};

/// The three parts of a date as they stand, or nothing of them.
using Parts = std::array<QString, 3>;

// A name of a day in front and a time behind count for nothing.
std::optional<Parts> partsOf(QString text)
{
    static const QString day = QStringLiteral("(?:(?:mon|tue|wed|thu|fri|sat|sun)[a-z]*[.,]*\\s+)?");
    static const QString first = QStringLiteral("([a-z]+|\\d{1,4})"), second = QStringLiteral("([a-z]+|\\d{1,2})");
    static const QString between = QStringLiteral("(?:(?<=\\d)(?:st|nd|rd|th))?(?:\\s*[-/.,]\\s*|\\s+)");
    static const QString time = QStringLiteral("(?:[T ,]+\\d{1,2}:\\d\\d(?::\\d\\d(?:[.,]\\d+)?)?"
                                               "\\s*(?:[ap]\\.?m\\.?|Z|UTC|GMT|[+-]\\d\\d:?\\d\\d)?)?");
    static const QRegularExpression form(QStringLiteral("^\\s*") + day + first + between + second + between
            + QStringLiteral("(\\d{1,4})") + time + QStringLiteral("\\.?\\s*$"),
        QRegularExpression::CaseInsensitiveOption);
    std::replace_if(
        text.begin(), text.end(), [](QChar character) { return character.isSpace(); }, QChar(u' '));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return {};
    return Parts{match.captured(1), match.captured(2), match.captured(3)};
}

// 0 for what is no name of a month.
int monthNamed(const QString& name)
{
    static const QStringList months{"january", "february", "march", "april", "may", "june", "july", "august",
        "september", "october", "november", "december"};
    if (name.size() < 3)
        return 0;
    const QString word = name.toLower() == "sept" ? QStringLiteral("sep") : name.toLower();
    const auto found =
        std::find_if(months.begin(), months.end(), [&word](const QString& month) { return month.startsWith(word); });
    return found == months.end() ? 0 : static_cast<int>(found - months.begin()) + 1;
}

// The century of two digits; 0 for a year of one digit or three.
int yearOf(const QString& digits)
{
    if (digits.size() == 4)
        return digits.toInt();
    if (digits.size() != 2)
        return 0;
    const int now = values::Today().year();
    const int year = now / 100 * 100 + digits.toInt();
    return year > now ? year - 100 : year;
}

// Programs write the first day of the year 1 for none, and spreadsheets the day from which they count.
std::optional<Date> dateOf(int day, int month, int year)
{
    const QDate date(year, month, day);
    if (year < 100 || !date.isValid() || date == QDate(1899, 12, 30))
        return {};
    return Date::fromDayMonthYear(day, month, year);
}

std::optional<Date> inOrder(const Parts& parts, DateOrder order)
{
    switch (order) {
    case DateOrder::MonthFirst:
        return dateOf(parts[1].toInt(), parts[0].toInt(), yearOf(parts[2]));
    case DateOrder::DayFirst:
        return dateOf(parts[0].toInt(), parts[1].toInt(), yearOf(parts[2]));
    case DateOrder::YearFirst:
        return dateOf(parts[2].toInt(), parts[1].toInt(), yearOf(parts[0]));
    case DateOrder::Unknown:
        break;
    }
    return {};
}

bool tellsItself(const Parts& parts)
{
    return parts[0].size() == 4 || parts[0][0].isLetter() || parts[1][0].isLetter();
}

// Of a date that tells its order itself.
std::optional<Date> byItself(const Parts& parts)
{
    if (parts[0][0].isLetter())
        return dateOf(parts[1].toInt(), monthNamed(parts[0]), yearOf(parts[2]));
    if (parts[1][0].isLetter() && parts[0].size() == 4)
        return dateOf(parts[2].toInt(), monthNamed(parts[1]), yearOf(parts[0]));
    if (parts[1][0].isLetter())
        return dateOf(parts[0].toInt(), monthNamed(parts[1]), yearOf(parts[2]));
    return inOrder(parts, DateOrder::YearFirst);
}

bool allows(const Parts& parts, DateOrder order)
{
    return inOrder(parts, order).has_value();
}

QString invalid()
{
    return QString::fromLatin1(asset_rules::InvalidDate);
}

// "44190": a date that the spreadsheet was not told to show as one.
bool isDayNumber(const QString& text)
{
    static const QRegularExpression form(QStringLiteral("^\\s*\\d{5}([.,]\\d+)?\\s*$"));
    return form.match(text).hasMatch();
}

// What a date without an order can be.
DateRead anyOf(const Parts& parts)
{
    std::vector<Date> readings;
    for (const DateOrder order : orders)
        if (const auto date = inOrder(parts, order))
            readings.push_back(*date);
    if (readings.empty())
        return {{}, invalid()};
    if (std::all_of(readings.begin(), readings.end(), [&](Date date) { return date == readings[0]; }))
        return {readings[0], {}};
    return {{},
        QStringLiteral("It Can Be %1 Or %2: The Order Must Be Told").arg(readings[0].toText(), readings[1].toText())};
}

} // namespace

QString nameOf(DateOrder order)
{
    switch (order) {
    case DateOrder::MonthFirst:
        return QStringLiteral("month/day/year");
    case DateOrder::DayFirst:
        return QStringLiteral("day/month/year");
    case DateOrder::YearFirst:
        return QStringLiteral("year/month/day");
    case DateOrder::Unknown:
        break;
    }
    return QStringLiteral("unknown");
}

std::optional<DateOrder> dateOrderNamed(const QString& word)
{
    const std::pair<const char*, DateOrder> named[] = {
        {"mdy", DateOrder::MonthFirst}, {"dmy", DateOrder::DayFirst}, {"ymd", DateOrder::YearFirst}};
    for (const auto& [name, order] : named)
        if (word == name)
            return order;
    return {};
}

DateReader::DateReader(const QStringList& column)
{
    std::vector<DateOrder> possible(std::begin(orders), std::end(orders));
    bool isNeeded = false;
    bool differ = false;
    for (const QString& text : column) {
        const std::optional<Parts> parts = partsOf(text);
        if (!parts || tellsItself(*parts))
            continue;
        const auto refuses = [&parts](DateOrder order) { return !allows(*parts, order); };
        if (std::all_of(std::begin(orders), std::end(orders), refuses))
            continue;
        isNeeded = true;
        differ = differ || !anyOf(*parts).date;
        std::erase_if(possible, refuses);
    }
    if (isNeeded && possible.size() == 1)
        order_ = possible.front();
    isAmbiguous_ = isNeeded && (possible.empty() || (possible.size() > 1 && differ)); // 1/1/2020 is one day in each
}

DateRead DateReader::read(const QString& text) const
{
    const std::optional<Parts> parts = partsOf(text);
    if (!parts)
        return {{},
            isDayNumber(text) ? QStringLiteral("It Is A Spreadsheet's Number Of A Day: Let The Column Show Dates")
                              : invalid()};
    if (!tellsItself(*parts) && order_ == DateOrder::Unknown)
        return anyOf(*parts);
    const std::optional<Date> date = tellsItself(*parts) ? byItself(*parts) : inOrder(*parts, order_);
    return date ? DateRead{date, {}} : DateRead{{}, invalid()};
}

} // namespace importing
