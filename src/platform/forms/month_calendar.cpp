// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/month_calendar.h"

#include "platform/forms/boundary.h"
#include "platform/forms/form.h"
#include "platform/forms/keyboard.h"
#include "platform/forms/look.h"

#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLocale>
#include <QPainter>
#include <QTextCharFormat>

namespace forms {

/// The toolkit's calendar, which always has a date, with today marked and with the state in which none is chosen.
class CalendarWidget : public QCalendarWidget {
public:
    CalendarWidget(QWidget* parent, MonthCalendar& calendar)
        : QCalendarWidget(parent)
        , calendar_(calendar)
    {
        setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
        setFirstDayOfWeek(Qt::Sunday);
        setVerticalHeaderFormat(NoVerticalHeader);
        setHorizontalHeaderFormat(ShortDayNames);
        setDateEditEnabled(false); // digits are keys of the handlers
        dressWeekDays();
        days_ = findChild<QAbstractItemView*>(QStringLiteral("qt_calendar_calendarview"));
        days_->installEventFilter(this);
        QObject::connect(this, &QCalendarWidget::clicked, this, [this](QDate date) {
            if (!insideToolkitCall())
                fromToolkit([this, date] { calendar_.clicked(date.year(), date.month(), date.day()); });
        });
        QObject::connect(this, &QCalendarWidget::selectionChanged, this, [this] {
            const QDate date = selectedDate();
            if (!insideToolkitCall())
                calendar_.moved(date.year(), date.month(), date.day());
        });
    }

    void showDate(const QDate& date)
    {
        const ToolkitCall call;
        setSelectedDate(date);
        setCurrentPage(date.year(), date.month());
        updateCells();
    }

    void showPage(int year, int month)
    {
        const ToolkitCall call;
        setCurrentPage(year, month);
        updateCells();
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched != days_ || event->type() != QEvent::KeyPress)
            return QCalendarWidget::eventFilter(watched, event);
        bool used = false;
        auto* stroke = static_cast<QKeyEvent*>(event);
        fromToolkit([this, stroke, &used] { used = handleKey(*stroke); });
        return used || QCalendarWidget::eventFilter(watched, event);
    }

    void paintCell(QPainter* painter, const QRect& cell, QDate date) const override
    {
        const look::Colours& colours = look::colours();
        const bool chosen = calendar_.isComplete() && date == selectedDate();
        const bool otherMonth = date.month() != monthShown();
        painter->save();
        painter->fillRect(cell, colours.field); // over the table's own mark of the selected cell
        painter->setRenderHint(QPainter::Antialiasing);
        const QRectF mark = QRectF(cell).adjusted(3, 3, -3, -3);
        if (chosen) {
            painter->setPen(Qt::NoPen);
            painter->setBrush(colours.accent);
            painter->drawRoundedRect(mark, 5, 5);
        }
        if (date == today()) {
            painter->setBrush(Qt::NoBrush);
            painter->setPen(QPen(chosen ? colours.ground : colours.accent, 1.6));
            painter->drawRoundedRect(mark, 5, 5);
        }
        painter->setPen(chosen ? colours.field : otherMonth ? colours.line : colours.text);
        painter->drawText(cell, Qt::AlignCenter, QString::number(date.day()));
        painter->restore();
    }

private:
    static QDate today()
    {
        const values::Date date = values::Today();
        return {date.year(), date.month(), date.day()};
    }

    void dressWeekDays()
    {
        QTextCharFormat format;
        format.setForeground(look::colours().quiet);
        format.setBackground(look::colours().field);
        setHeaderTextFormat(format);
        for (int day = Qt::Monday; day <= Qt::Sunday; ++day)
            setWeekdayTextFormat(static_cast<Qt::DayOfWeek>(day), {});
    }

    bool handleKey(QKeyEvent& event)
    {
        if (Keyboard::down(calendar_, event))
            return true;
        switch (event.key()) {
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_Home:
        case Qt::Key_End:
            return false;
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            turnPage(event.key() == Qt::Key_PageDown ? 1 : -1, event.modifiers() & Qt::ControlModifier);
            return true;
        default:
            Keyboard::pressText(calendar_, event);
            return true;
        }
    }

    void turnPage(int step, bool years)
    {
        const QDate from = selectedDate();
        const QDate to = years ? from.addYears(step) : from.addMonths(step);
        showDate(to);
        const QDate shown = selectedDate(); // the toolkit has a first and a last date
        calendar_.moved(shown.year(), shown.month(), shown.day());
    }

    MonthCalendar& calendar_;
    QAbstractItemView* days_;
};

MonthCalendar::MonthCalendar(Form& form, const QString& name)
    : Control(form, name)
    , calendar_(nullptr)
{
    const ToolkitCall call;
    calendar_ = new CalendarWidget(form.canvas(), *this);
    adopt(calendar_);
}

void MonthCalendar::setDay(int day)
{
    day_ = day;
    showChosen();
}

void MonthCalendar::setMonth(int month)
{
    month_ = month;
    showChosen();
}

void MonthCalendar::setYear(int year)
{
    year_ = year;
    showChosen();
}

void MonthCalendar::setValue(const values::Date& date)
{
    moved(date.year(), date.month(), date.day());
    showChosen();
}

void MonthCalendar::showChosen()
{
    if (!isComplete()) {
        if (year_ != 0 && month_ != 0)
            calendar_->showPage(year_, month_);
        calendar_->update();
        return;
    }
    const int last = QDate(year_, month_, 1).daysInMonth();
    day_ = last > 0 && day_ > last ? last : day_;
    calendar_->showDate(QDate(year_, month_, day_));
}

void MonthCalendar::moved(int year, int month, int day)
{
    year_ = year;
    month_ = month;
    day_ = day;
}

void MonthCalendar::clicked(int year, int month, int day)
{
    moved(year, month, day);
    Click.fire();
}

} // namespace forms
