// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

#include <QApplication>
#include <QCompleter>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QWindow>

namespace {

class HeldInput : public FormInFront {
protected:
    HeldInput() { useRealBoxes(); }

    void ask()
    {
        forms::MsgBox("Sure?", forms::box::YesNo, "Title");
        journal += "asked";
    }

    static void clickDefaultButton()
    {
        auto* button = QApplication::activeModalWidget()->findChild<QPushButton*>();
        const QPoint place = button->mapTo(button->window(), button->rect().center());
        QTest::mouseClick(button->window()->windowHandle(), Qt::LeftButton, {}, place);
    }

    // What comes of a question that is answered and of a click and a key right behind the answer.
    QString comesOf(const std::function<void()>& answer)
    {
        whileModal([&] {
            answer();
            click(form.other);
            type("x");
        });
        press(Qt::Key_Return);
        settle();
        return taken();
    }
};

TEST_F(HeldInput, WaitsWhicheverWayTheQuestionIsAnswered)
{
    form.answers["ok.Click"] = [this] { ask(); };
    const std::function<void()> answers[] = {[] { press(Qt::Key_Return); }, [] { press(Qt::Key_Space); },
        [] { press(Qt::Key_Escape); }, [] { QApplication::activeModalWidget()->close(); }, clickDefaultButton};
    for (const auto& answer : answers) {
        EXPECT_EQ(comesOf(answer), "asked line.LostFocus other.GotFocus other.Click");
        form.line.setFocus();
        taken();
    }
}

TEST_F(HeldInput, IsDroppedWhenItsHandlerAsksOnceMore)
{
    form.answers["ok.Click"] = [this] { ask(), whileModal([] { press(Qt::Key_Return); }), ask(); };
    EXPECT_EQ(comesOf([] { press(Qt::Key_Return); }), "asked asked");
    click(form.other);
    EXPECT_EQ(taken(), "line.LostFocus other.GotFocus other.Click");
}

// The window system has sent it to the window that was in front by then.
TEST_F(FormInFront, WhatComesBehindTheKeyThatLeavesAScreenDoesNotReachIt)
{
    TrialForm next(journal, "next");
    form.answers["ok.Click"] = [&] { next.show(), form.hide(); };
    QWindow* left = form.window()->windowHandle();
    QTest::keyClick(left, Qt::Key_Return);
    taken();
    QTest::keyClick(left, Qt::Key_Return);
    QTest::keyClick(left, Qt::Key_O, Qt::AltModifier);
    QTest::mouseClick(left, Qt::LeftButton, {}, form.other.widget()->geometry().center());
    EXPECT_EQ(taken(), "");
    EXPECT_FALSE(form.isVisible());
}

TEST_F(FormInFront, KeysBehindTheOneThatClosesAListAreForItsScreen)
{
    form.choice.setFocus();
    form.choice.openList();
    QWindow* list = QApplication::activePopupWidget()->windowHandle();
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Tab, Qt::Key_X})
        QTest::keyClick(list, key);
    EXPECT_EQ(form.memo.text(), "x");
}

// A name typed into the toolkit's own dialogue for files; its list of suggestions belongs to no window.
TEST_F(FormInFront, KeysBehindSuggestionsThatHaveGoneAreForTheirBox)
{
    QDialog dialog(form.window());
    QLineEdit box(&dialog);
    QCompleter suggestions({"on", "once"});
    box.setCompleter(&suggestions);
    dialog.show();
    dialog.activateWindow();
    settle();
    for (const Qt::Key key : {Qt::Key_O, Qt::Key_N})
        QTest::keyClick(dialog.windowHandle(), key);
    QWindow* list = QApplication::activePopupWidget()->windowHandle();
    for (const Qt::Key key : {Qt::Key_E, Qt::Key_Minus, Qt::Key_A})
        QTest::keyClick(list, key);
    EXPECT_EQ(box.text(), "one-a");
}

// As the toolkit hands them on while a screen reader listens.
TEST_F(FormInFront, KeysWithoutATimeAreNoRepeats)
{
    form.other.setFocus();
    form.answers["other.Click"] = [this] { journal += "pressed"; };
    taken();
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease, QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent stroke(type, Qt::Key_Return, {}, 36, 0, 0, "\r");
        QCoreApplication::sendEvent(form.window()->windowHandle(), &stroke);
    }
    EXPECT_EQ(taken(), "pressed pressed");
}

} // namespace
