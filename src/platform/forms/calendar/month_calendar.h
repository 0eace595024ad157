// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/screens/control.h"
#include "platform/values/date.h"

class QDate;

namespace forms {

class MonthPage;

/// A month in which a day is picked. The toolkit's own calendar always has a day chosen, a date that isn't complete
/// can't stand in it, and 63 of the 72 cells that it tells assistive tools of are bare numbers.
///
/// Click fires when the user picks a day by mouse. Arrow keys, Home and End move the day; page keys, the wheel and
/// buttons turn months, with Ctrl and buttons of their own years, and take the date along. Every other key but Tab goes
/// to KeyDown and KeyPress. The date may be incomplete: then day, month or year reads 0 and no day is marked.
class MonthCalendar : public Control {
public:
    MonthCalendar(Form& form, const QString& name);

    int Day() const;
    int Month() const { return month_; }
    int Year() const { return year_; }

    /// Each takes 0 for "not chosen", in any order; a number that no calendar has counts as 0. A day past the end of
    /// the month reads as its last day once the date is complete.
    void setDay(int day);
    void setMonth(int month);
    void setYear(int year);

    /// The whole date at once.
    void setValue(const values::Date& date);

    bool isComplete() const { return day_ != 0 && month_ != 0 && year_ != 0; }

private:
    friend class DayPainter;
    friend class MonthPage;

    static QDate today();
    QDate page() const;
    QDate chosen() const;
    void turn(int months);
    void step(int days);
    bool moveTo(const QDate& date);
    void pick(const QDate& date);

    MonthPage* page_;
    int day_ = 0;
    int month_ = 0;
    int year_ = 0;
};

} // namespace forms
