// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/control.h"
#include "platform/values/date.h"

namespace forms {

class CalendarWidget;

/// A month in which a day is picked. Click fires when the user picks a day by mouse; arrow and page keys move, and
/// every other key goes to KeyDown and KeyPress. The date may be incomplete: then day, month or year reads 0 and no day
/// is marked.
class MonthCalendar : public Control {
public:
    MonthCalendar(Form& form, const QString& name);

    int Day() const { return day_; }
    int Month() const { return month_; }
    int Year() const { return year_; }

    /// Each takes 0 for "not chosen". A day past the end of the month becomes its last day once the date is complete.
    void setDay(int day);
    void setMonth(int month);
    void setYear(int year);

    /// The whole date at once.
    void setValue(const values::Date& date);

    bool isComplete() const { return day_ != 0 && month_ != 0 && year_ != 0; }

private:
    friend class CalendarWidget;

    void showChosen();
    void moved(int year, int month, int day);
    void clicked(int year, int month, int day);

    CalendarWidget* calendar_;
    int day_ = 0;
    int month_ = 0;
    int year_ = 0;
};

} // namespace forms
