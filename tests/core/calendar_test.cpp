// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/frmAddUpDel.h"
#include "core/frmCalendar.h"
#include "core/frmStartup.h"
#include "support/harness.h"

#include <QAbstractItemView>

using forms::Answer;
using forms::screen;

namespace {

constexpr int Question = 36;

const char* const CloseQuestion = "Are You Sure You Want To Close The Calendar?";
const char* const TodayQuestion = "A Calendar Date Has Not Been Selected...Would You Like To Use Today's Date!";

// The calendar in front of the asset screen, which is disabled meanwhile.
class Calendar : public ScreenTest {
protected:
    static frmAddUpDel& asset() { return screen<frmAddUpDel>(); }
    static frmCalendar& calendar() { return screen<frmCalendar>(); }

    // Opens the calendar as the asset screen does, and lets the user act in it. Returns when it is closed.
    void openCalendar(std::function<void()> act)
    {
        asset().show();
        asset().txtPur.setText("5/6/2007");
        asset().setEnabled(false);
        calendar().DateTarget = 3;
        calendar().calDate.setValue(values::Date::fromDayMonthYear(1, 1, 2007));
        whileModal(std::move(act));
        forms::runAsHandler("opening", [] { calendar().show_Modal(asset()); });
        EXPECT_FALSE(calendar().isVisible());
    }

    // The days stand in a table, those of the neighbouring months around them; the 17th is in its month alone.
    static void clickDay(int day)
    {
        auto* days = calendar().calDate.widget()->findChild<QAbstractItemView*>();
        const QPoint centre = days->visualRect(cellOf(*days, day)).center();
        clickAt(calendar().calDate, days->viewport()->mapTo(calendar().calDate.widget(), centre));
    }

    static QModelIndex cellOf(const QAbstractItemView& days, int day)
    {
        for (int row = 0; row < days.model()->rowCount(); ++row)
            for (int column = 0; column < days.model()->columnCount(); ++column)
                if (days.model()->index(row, column).data().toInt() == day)
                    return days.model()->index(row, column);
        throw std::logic_error("no such day");
    }

    static void expectOpen()
    {
        EXPECT_TRUE(calendar().isVisible());
        EXPECT_FALSE(asset().isEnabled());
        EXPECT_EQ(asset().txtPur.text(), "5/6/2007");
    }

    static void expectGivenBackWith(const QString& date)
    {
        EXPECT_TRUE(asset().isEnabled());
        EXPECT_EQ(asset().txtPur.text(), date);
        EXPECT_EQ(frmStartup::CurrentScreen, 10);
    }
};

TEST_F(Calendar, DeliversADateByClickAndByEnterWithoutAQuestion)
{
    openCalendar([] {
        EXPECT_EQ(frmStartup::CurrentScreen, 19);
        clickDay(17);
        EXPECT_EQ(frmStartup::CurrentScreen, 10) << "before the asset screen is in front again";
    });
    expectGivenBackWith("1/17/2007");

    openCalendar([] {
        press(Qt::Key_Right);
        press(Qt::Key_Return);
    });
    expectGivenBackWith("1/2/2007");
}

TEST_F(Calendar, AsksAtAnyOtherKeyAndAtTheCloseBoxAndStaysAtNo)
{
    openCalendar([this] {
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Escape, Qt::Key_A, Qt::Key_Backspace}) {
            expectBox(CloseQuestion, Question, Answer::No);
            press(key);
            expectOpen();
        }
        expectBox(CloseQuestion, Question, Answer::No);
        closeBox(calendar());
        expectOpen();
        press(Qt::Key_Return);
    });
}

TEST_F(Calendar, LeavesWithoutADateAtYes)
{
    expectBox(CloseQuestion, Question, Answer::Yes);
    openCalendar([] { press(Qt::Key_Space); });
    expectGivenBackWith("5/6/2007");

    expectBox(CloseQuestion, Question, Answer::Yes);
    openCalendar([] { closeBox(calendar()); });
    expectGivenBackWith("5/6/2007");
}

} // namespace
