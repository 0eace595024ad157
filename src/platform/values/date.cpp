// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/values/date.h"

#include "platform/values/digits.h"
#include "platform/values/failure.h"

#include <QDate>

#include <array>

namespace values {

namespace {

constexpr int firstYear = 100;
constexpr int lastYear = 9999;
constexpr int monthsInYear = 12;

std::optional<Date> fixedToday;

/// Month, day and year in the order of the text.
using Numbers = std::array<int, 3>;

std::optional<Numbers> split(QStringView text)
{
    const QList<QStringView> fields = text.split(u'/');
    if (fields.size() != 3 || fields[2].size() != 4) {
        return std::nullopt;
    }
    for (const QStringView field : fields) {
        if (field.isEmpty() || !digits::areAll(field)) {
            return std::nullopt;
        }
    }
    if (fields[0].size() > 2 || fields[1].size() > 2) {
        return std::nullopt;
    }
    return Numbers{fields[0].toInt(), fields[1].toInt(), fields[2].toInt()};
}

} // namespace

std::optional<Date> Date::ifExists(int day, int month, int year)
{
    const QDate date(year, month, day);
    const bool exists = date.isValid() && year >= firstYear && year <= lastYear;
    return exists ? std::optional(Date(date.toJulianDay())) : std::nullopt;
}

Date Date::fromDayMonthYear(int day, int month, int year)
{
    if (const std::optional<Date> date = ifExists(day, month, year)) {
        return *date;
    }
    throw mismatch(QStringLiteral("%1/%2/%3").arg(month).arg(day).arg(year), QStringLiteral("a date"));
}

Date Date::parse(const QString& text)
{
    if (const std::optional<Date> date = tryParse(text)) {
        return *date;
    }
    throw mismatch(text, QStringLiteral("a date"));
}

std::optional<Date> Date::tryParse(const QString& text)
{
    const std::optional<Numbers> numbers = split(text);
    if (!numbers) {
        return std::nullopt;
    }
    const auto [first, second, year] = *numbers;
    return first > monthsInYear ? ifExists(first, second, year) : ifExists(second, first, year);
}

QString Date::toText() const
{
    return QStringLiteral("%1/%2/%3").arg(month()).arg(day()).arg(year(), 4, 10, QLatin1Char('0'));
}

int Date::day() const
{
    return QDate::fromJulianDay(julianDay_).day();
}

int Date::month() const
{
    return QDate::fromJulianDay(julianDay_).month();
}

int Date::year() const
{
    return QDate::fromJulianDay(julianDay_).year();
}

Date Today()
{
    const QDate now = QDate::currentDate();
    return fixedToday ? *fixedToday : Date::fromDayMonthYear(now.day(), now.month(), now.year());
}

void setToday(std::optional<Date> day)
{
    fixedToday = day;
}

} // namespace values
