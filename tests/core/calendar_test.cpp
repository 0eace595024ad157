// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/frmAddUpDel.h"
#include "core/frmCalendar.h"
#include "core/frmStartup.h"
#include "support/harness.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
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

    // Opens the calendar as the asset screen does, lets the user act in it, and tells what has come of it.
    QString after(std::function<void()> act)
    {
        asset().show();
        asset().txtPur.setText("5/6/2007");
        asset().setEnabled(false);
        screen<frmCalendar>().DateTarget = 3;
        date().setValue(values::Date::fromDayMonthYear(31, 1, 2007));
        whileModal(std::move(act));
        forms::runAsHandler("opening", [] { screen<frmCalendar>().show_Modal(asset()); });
        return scene() + ", " + asset().txtPur.text();
    }

    void stays(const QString& question, const std::function<void()>& act)
    {
        expectToStay(act, question);
        EXPECT_EQ(asset().txtPur.text(), "5/6/2007");
    }

    static QTableView& days() { return *date().widget()->findChild<QTableView*>(); }

    static void clickDay(int week, int weekday)
    {
        const QPoint middle = days().visualRect(days().model()->index(week, weekday)).center();
        clickAt(date(), days().viewport()->mapTo(date().widget(), middle));
    }

    static void clickTurner(const QString& name)
    {
        for (const auto* turner : date().widget()->findChildren<QPushButton*>())
            if (turner->accessibleName() == name)
                clickAt(date(), turner->geometry().center());
    }

    // The month on show, and what a screen reader says of the place of the focus.
    static QString state()
    {
        const QString page = date().widget()->findChild<QLabel*>()->text() + ": ";
        auto* focused = QAccessible::queryAccessibleInterface(QApplication::focusWidget());
        if (QApplication::focusWidget() != &days())
            return page + focused->text(QAccessible::Name) + ", " + focused->text(QAccessible::Description);
        const QModelIndex day = days().currentIndex();
        return day.isValid()
            ? page + focused->tableInterface()->cellAt(day.row(), day.column())->text(QAccessible::Name)
            : page;
    }
};

TEST_F(Calendar, DeliversADateByClickAndByEnterWithoutAQuestion)
{
    const std::pair<std::function<void()>, QString> ways[] = {{[] { clickDay(2, 3); }, "1/17/2007"},
        {[] { press(Qt::Key_PageDown), clickDay(0, 3); }, "1/31/2007"}, // the last days of January before February
        {[] { press(Qt::Key_Right), press(Qt::Key_Return); }, "2/1/2007"}};
    for (const auto& [way, delivered] : ways) {
        const auto pick = [&way] {
            way();
            EXPECT_EQ(frmStartup::CurrentScreen, 10) << "before the asset screen is in front again";
        };
        EXPECT_EQ(after(pick), "10 frmAddUpDel: cmbLoc, " + delivered);
    }
}

TEST_F(Calendar, TakesTheDateAlongWithEveryTurnAndSaysIt)
{
    const std::pair<std::function<void()>, QString> moves[] = {
        {[] { press(Qt::Key_PageDown); }, "February 2007: Wednesday, February 28, 2007"},
        {[] { press(Qt::Key_PageDown); }, "March 2007: Wednesday, March 28, 2007"},
        {[] { press(Qt::Key_PageUp, Qt::ControlModifier); }, "March 2006: Tuesday, March 28, 2006"},
        {[] { press(Qt::Key_Down); }, "April 2006: Tuesday, April 4, 2006"},
        {[] { press(Qt::Key_Home); }, "April 2006: Saturday, April 1, 2006"},
        {[] { press(Qt::Key_Left); }, "March 2006: Friday, March 31, 2006"},
        {[] { press(Qt::Key_Up); }, "March 2006: Friday, March 24, 2006"},
        {[] { press(Qt::Key_End); }, "March 2006: Friday, March 31, 2006"},
        {[] { press(Qt::Key_Left), hold(Qt::Key_Right), repeat(Qt::Key_Right, {}, 1), letGo(Qt::Key_Right); },
            "April 2006: Saturday, April 1, 2006"},
        {[] { press(Qt::Key_PageUp); }, "March 2006: Wednesday, March 1, 2006"},
        {[] { press(Qt::Key_PageDown, Qt::ControlModifier); }, "March 2007: Thursday, March 1, 2007"},
        {[] { wheel(*days().viewport(), -120); }, "April 2007: Sunday, April 1, 2007"},
        {[] { clickTurner("Next year"); }, "April 2008: Tuesday, April 1, 2008"},
        {[] { clickTurner("Previous month"); }, "March 2008: Saturday, March 1, 2008"},
        {[] { press(Qt::Key_Tab), press(Qt::Key_Space); }, "March 2007: Previous year, Thursday, March 1, 2007"},
        {[] { press(Qt::Key_Tab), press(Qt::Key_Tab), press(Qt::Key_Return); },
            "April 2007: Next month, Sunday, April 1, 2007"},
        {[] { press(Qt::Key_Right); }, "April 2007: Next month, Monday, April 2, 2007"},
        {[] { press(Qt::Key_Tab), press(Qt::Key_Tab), press(Qt::Key_Right); }, "April 2007: Tuesday, April 3, 2007"},
        {backTab, "April 2007: Next year, Tuesday, April 3, 2007"},
    };
    const QString taken = after([&moves] {
        for (const auto& [move, after] : moves) {
            move();
            EXPECT_EQ(state(), after);
        }
        EXPECT_EQ(days().accessibleName(), "Days of April 2007");
        press({Qt::Key_Tab, Qt::Key_Return});
    });
    EXPECT_EQ(taken, "10 frmAddUpDel: cmbLoc, 4/3/2007");
}

TEST_F(Calendar, OffersTodayWhereTheDateIsIncomplete)
{
    const QString taken = after([this] {
        for (const auto& takeAway :
            {&forms::MonthCalendar::setDay, &forms::MonthCalendar::setMonth, &forms::MonthCalendar::setYear}) {
            date().setValue(values::Date::fromDayMonthYear(31, 1, 2007));
            (date().*takeAway)(0);
            EXPECT_FALSE(days().currentIndex().isValid());
            stays(TodayQuestion, [] { press(Qt::Key_Return); });
        }
        date().setDay(0);
        date().setYear(2007);
        press(Qt::Key_PageDown);
        EXPECT_EQ(state(), "February 2007: ") << "a turn chooses no day";
        expectBox(TodayQuestion, YesNoQuestion, Answer::Yes);
        stays(CloseQuestion, [] { press(Qt::Key_Space); });
        EXPECT_EQ(state(), "November 2026: Tuesday, November 24, 2026");
        date().setDay(0);
        press(Qt::Key_Right);
        EXPECT_EQ(state(), "November 2026: Sunday, November 1, 2026") << "the first step chooses a day to start from";
        date().setDay(0);
        expectBox(TodayQuestion, YesNoQuestion, Answer::Yes);
        press(Qt::Key_Return);
    });
    EXPECT_EQ(taken, "10 frmAddUpDel: cmbLoc, 11/24/2026");
}

TEST_F(Calendar, AsksAtAnyOtherKeyAndAtTheCloseBox)
{
    const auto close = [] { closeBox(screen<frmCalendar>()); };
    after([&] {
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Escape, Qt::Key_A, Qt::Key_Backspace, Qt::Key_2})
            stays(CloseQuestion, [key] { hold(key), repeat(key), letGo(key); }); // a repeat asks no second time
        press({Qt::Key_Delete, Qt::Key_F5, Qt::Key_Shift});
        stays(CloseQuestion, close);
        press(Qt::Key_Return);
    });
    for (const std::function<void()>& leave : {std::function<void()>([] { press(Qt::Key_Space); }), {close}}) {
        expectBox(CloseQuestion, YesNoQuestion, Answer::Yes);
        EXPECT_EQ(after(leave), "10 frmAddUpDel: cmbLoc, 5/6/2007");
    }
}

} // namespace
