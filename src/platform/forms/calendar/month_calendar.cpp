// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/calendar/month_calendar.h"

#include "platform/forms/calendar/month_page.h"
#include "platform/forms/runtime/boundary.h"
#include "platform/forms/screens/form.h"

#include <QDate>

#include <algorithm>

namespace forms {

namespace {

constexpr int firstYear = 100;
constexpr int lastYear = 9999;

bool isInRange(const QDate& date)
{
    return date.year() >= firstYear && date.year() <= lastYear;
}

int ifWithin(int number, int first, int last)
{
    return number >= first && number <= last ? number : 0;
}

} // namespace

MonthCalendar::MonthCalendar(Form& form, const QString& name)
    : Control(form, name)
    , page_(nullptr)
{
    const ToolkitCall call;
    page_ = new MonthPage(form.canvas(), *this);
    adopt(page_);
    page_->refresh();
}

int MonthCalendar::Day() const
{
    return isComplete() ? chosen().day() : day_;
}

void MonthCalendar::setDay(int day)
{
    day_ = ifWithin(day, 1, 31);
    page_->refresh();
}

void MonthCalendar::setMonth(int month)
{
    month_ = ifWithin(month, 1, 12);
    page_->refresh();
}

void MonthCalendar::setYear(int year)
{
    year_ = ifWithin(year, firstYear, lastYear);
    page_->refresh();
}

void MonthCalendar::setValue(const values::Date& date)
{
    moveTo({date.year(), date.month(), date.day()});
}

QDate MonthCalendar::today()
{
    const values::Date date = values::Today();
    return {date.year(), date.month(), date.day()};
}

// The first day of the month on show, which is today's as far as none has been chosen.
QDate MonthCalendar::page() const
{
    return {year_ != 0 ? year_ : today().year(), month_ != 0 ? month_ : today().month(), 1};
}

// Not valid while the date is incomplete.
QDate MonthCalendar::chosen() const
{
    return isComplete() ? page().addDays(std::min(day_, page().daysInMonth()) - 1) : QDate();
}

// The day stays, so far as the month has it, or stays out.
void MonthCalendar::turn(int months)
{
    const QDate to = page().addMonths(months);
    if (months == 0 || !isInRange(to))
        return;
    day_ = Day();
    month_ = to.month();
    year_ = to.year();
    day_ = Day();
    page_->refresh();
}

// The first step in an incomplete date chooses a day to start from.
void MonthCalendar::step(int days)
{
    moveTo(isComplete() ? chosen().addDays(days) : page());
}

bool MonthCalendar::moveTo(const QDate& date)
{
    if (!isInRange(date))
        return false;
    day_ = date.day();
    month_ = date.month();
    year_ = date.year();
    page_->refresh();
    return true;
}

void MonthCalendar::pick(const QDate& date)
{
    if (moveTo(date))
        Click.fire();
}

} // namespace forms
