// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <compare>
#include <optional>

namespace values {

/// A day of the calendar, without a clock or a zone, from the year 100 to the year 9999. Every `Date` is a day that
/// exists.
class Date {
public:
    /// Failure: TypeMismatch, where there is no such day.
    static Date fromDayMonthYear(int day, int month, int year);

    /// Reads month/day/year, "7/4/2006" or "07/04/2006"; where the first number can't be a month it is the day, as in
    /// "25/12/2005". The year has four digits: of two digits no century is guessed. Failure: TypeMismatch for any other
    /// text and for a day that doesn't exist, as "2/30/2006".
    static Date parse(const QString& text);

    /// The same without a failure: nothing where `parse` fails.
    static std::optional<Date> tryParse(const QString& text);

    /// "7/4/2006": month, day and year without leading zeros (a year below 1000 keeps its four digits, as `parse` wants
    /// them), whatever the machine's locale.
    QString toText() const;

    int day() const;
    int month() const;
    int year() const;

    /// The days from `earlier` to `later`; below zero where they stand the other way round.
    friend int operator-(Date later, Date earlier) { return int(later.julianDay_ - earlier.julianDay_); }
    friend constexpr auto operator<=>(Date, Date) = default;

private:
    explicit constexpr Date(qint64 julianDay)
        : julianDay_(julianDay)
    {
    }

    static std::optional<Date> ifExists(int day, int month, int year);

    qint64 julianDay_;
};

/// The day it is where the machine stands, or the day given to `setToday`.
Date Today();

/// Fixes what `Today` answers, for tests; nothing gives the clock back.
void setToday(std::optional<Date> day);

} // namespace values
