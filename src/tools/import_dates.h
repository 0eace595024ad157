// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/values/date.h"

#include <QStringList>

#include <optional>

namespace importing {

/// The order of the numbers of a date.
enum class DateOrder { Unknown, MonthFirst, DayFirst, YearFirst };

/// "month/day/year"
QString nameOf(DateOrder order);

/// "mdy", "dmy" or "ymd"; nothing for another word.
std::optional<DateOrder> dateOrderNamed(const QString& word);

/// A date that was read, or why it can't be.
struct DateRead {
    std::optional<values::Date> date;
    QString fault;
};

/// Reads the dates of a column, with slashes, points, hyphens or blanks between their numbers, or the month by its
/// English name, and a time behind them, which counts for nothing. A year of four digits in front and a month by its
/// name tell their order themselves. A year of two digits is the last such year that has begun: nothing was bought
/// later.
class DateReader {
public:
    /// Finds out the order of a column: the only one that all of its dates allow. Dates of no order don't count.
    explicit DateReader(const QStringList& column);
    explicit DateReader(DateOrder order)
        : order_(order)
    {
    }

    /// Unknown, where there are several, and where no date needs one.
    DateOrder order() const { return order_; }

    /// Whether nothing but the user can tell the order.
    bool isAmbiguous() const { return isAmbiguous_; }

    DateRead read(const QString& text) const;

private:
    DateOrder order_ = DateOrder::Unknown;
    bool isAmbiguous_ = false;
};

} // namespace importing
