// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/frmAddUpDel.h"
#include "frame/frmStartup.h"
#include "shared/frmCalendar.h"
#include "support/harness.h"

#include <QTableView>

using forms::Answer;
using forms::screen;

namespace {

const char* const CloseQuestion = "Are You Sure You Want To Close The Calendar?";
const char* const TodayQuestion = "A Calendar Date Has Not Been Selected...Would You Like To Use Today's Date!";

// The calendar in front of the asset screen, which is disabled meanwhile.
class Calendar : public ScreenTest {
protected:
    static frmAddUpDel& asset() { return screen<frmAddUpDel>(); }
    static forms::MonthCalendar& date() { return screen<frmCalendar>().calDate; }

    Calendar() { asset().show(); }

    // Opens the calendar on the last day of January, lets the user act in it, and tells what has come of it.
    QString after(std::function<void()> act)
    {
        asset().txtPur.setText("1/31/2007");
        whileModal(std::move(act));
        click(asset().picDate);
        return line(scene(), asset().txtPur.text());
    }

    static QTableView& days() { return *date().widget()->findChild<QTableView*>(); }

    static void clickDay(int week, int weekday)
    {
        const QPoint middle = days().visualRect(days().model()->index(week, weekday)).center();
        clickAt(date(), days().viewport()->mapTo(date().widget(), middle));
    }

    static QString chosen() { return line(days().accessibleName(), date().Day()); }
};

TEST_F(Calendar, DeliversADateByClickAndByEnterAndAsksAtAnyOtherKeyAndAtTheCloseBox)
{
    const auto clickThere = [](int turns, int week) {
        for (; turns > 0; --turns)
            press(Qt::Key_PageDown);
        clickDay(week, 3);
        EXPECT_EQ(frmStartup::CurrentScreen, 10) << "before the asset screen is in front again";
    };
    EXPECT_EQ(after([&] { clickThere(0, 2); }), "10 frmAddUpDel: cmbLoc, 1/17/2007");
    EXPECT_EQ(after([&] { clickThere(1, 0); }), "10 frmAddUpDel: cmbLoc, 1/31/2007") << "it stands before February";
    replay("core/calendar.txt");
}

TEST_F(Calendar, OffersTodayWhereTheDateIsIncomplete)
{
    const QString taken = after([this] {
        for (const auto& takeAway :
            {&forms::MonthCalendar::setDay, &forms::MonthCalendar::setMonth, &forms::MonthCalendar::setYear}) {
            date().setValue(values::Date::fromDayMonthYear(31, 1, 2007));
            (date().*takeAway)(0);
            EXPECT_FALSE(days().currentIndex().isValid());
            expectToStay([] { press(Qt::Key_Return); }, TodayQuestion);
        }
        date().setDay(0);
        date().setYear(2007);
        press(Qt::Key_PageDown);
        EXPECT_EQ(chosen(), "Days of February 2007, 0") << "a turn chooses no day";
        expectBox(TodayQuestion, YesNoQuestion, Answer::Yes);
        expectToStay([] { press(Qt::Key_Space); }, CloseQuestion);
        EXPECT_EQ(chosen(), "Days of November 2026, 24");
        date().setDay(0);
        press(Qt::Key_Right);
        EXPECT_EQ(chosen(), "Days of November 2026, 1") << "the first step chooses a day to start from";
        date().setDay(0);
        expectBox(TodayQuestion, YesNoQuestion, Answer::Yes);
        press(Qt::Key_Return);
    });
    EXPECT_EQ(taken, "10 frmAddUpDel: cmbLoc, 11/24/2026");
}

} // namespace
