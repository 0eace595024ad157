// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

#include <QPushButton>
#include <QTest>

namespace {

// Presses on other parts of a control than its middle, keys that are held, clicks that come twice.
using Hands = FormInFront;

TEST_F(Hands, TheFocusComesAtThePressWhateverPartItIsOn)
{
    const std::tuple<const char*, std::function<void()>, const char*> presses[] = {
        {"empty", [this] { clickArrow(form.empty); }, "combo"},
        {"combo", [this] { clickArrow(form.combo); }, "locked"},
        {"combo", [this] { clickAt(form.combo, QPoint()); }, "locked"},
        {"locked", [this] { clickArrow(form.locked); }, "choice"},
        {"choice", [this] { clickArrow(form.choice); }, "memo"},
        {"memo", [this] { clickAt(form.memo, QPoint(form.memo.widget()->width() - 5, 9)); }, "check"},
        {"memo", [this] { EXPECT_TRUE(rightClick(form.memo)); }, "check"},
    };
    for (const auto& [control, press, next] : presses) {
        stand(form.line);
        EXPECT_EQ(after(press), QString("line.LostFocus %1.GotFocus").arg(control));
        if (isListOpen())
            ::press(Qt::Key_Escape);
        EXPECT_EQ(after(tab), QString("%1.LostFocus %2.GotFocus").arg(control, next));
    }
}

TEST_F(Hands, TheSecondClickCountsAloneOrBringsTheFocusWhereTheFirstHasClosedAListAndPressesNothingOnAnotherScreen)
{
    form.memo.setText("word");
    form.memo.DblClick = [this] { journal += "DblClick"; };
    EXPECT_EQ(after([this] { click(form.memo); }), "line.LostFocus memo.GotFocus memo.Click");
    EXPECT_EQ(after(clickAgain), "DblClick");
    clickArrow(form.combo);
    taken();
    EXPECT_TRUE(isListOpen());
    EXPECT_EQ(after([this] { click(form.line); }), "");
    EXPECT_FALSE(isListOpen());
    EXPECT_EQ(after(clickAgain), "combo.LostFocus line.GotFocus line.Click");

    TrialForm other(journal, "Other");
    form.answers["ok.Click"] = [&other] { other.show(); };
    click(form.ok);
    taken();
    EXPECT_EQ(after(clickAgain), "");
    EXPECT_EQ(after([&other] { click(other.ok); }), "line.LostFocus ok.GotFocus ok.Click");
}

TEST_F(Hands, ADraggedMouseSelectsAndATremblingOneLeavesWhatTheFocusHasSelected)
{
    for (forms::TextEntry* each : std::initializer_list<forms::TextEntry*>{&form.line, &form.memo}) {
        form.answers[each->name() + ".GotFocus"] = [each] { each->selectAll(); };
        each->setText("some words");
        stand(form.ok);
        drag(*each, {9, 16}, {12, 16});
        type("some words");
        EXPECT_EQ(each->text(), "some words");
        drag(*each, {each->widget()->width() - 40, 16}, {2, 16});
        type("x");
        EXPECT_EQ(each->text(), "x");
    }
}

TEST_F(Hands, ABoxThatTheFocusBringsComesOnceWithNoListBehindIt)
{
    useRealBoxes();
    for (forms::ComboBox* each : {&form.combo, &form.choice}) {
        form.answers[each->name() + ".GotFocus"] = [this] {
            journal += "box";
            forms::MsgBox("Mind this", forms::box::Information, "Title");
        };
        stand(form.line);
        whileModal([] {
            auto* ok = QApplication::activeModalWidget()->findChild<QPushButton*>();
            QTest::mouseClick(ok->window()->windowHandle(), Qt::LeftButton, {}, ok->mapTo(ok->window(), QPoint(9, 9)));
        });
        EXPECT_EQ(after([each] { clickArrow(*each); }), "line.LostFocus box") << each->name().toStdString();
        EXPECT_FALSE(isListOpen());
        clickArrow(*each);
        EXPECT_TRUE(isListOpen()) << "the next press";
        press(Qt::Key_Escape);
    }
}

TEST_F(Hands, APressCountsNoMoreOnceAHandlerHasSentTheFocusElsewhere)
{
    form.answers["memo.GotFocus"] = form.answers["check.GotFocus"] = [this] { form.line.setFocus(); };
    for (forms::Control* each : std::initializer_list<forms::Control*>{&form.memo, &form.check}) {
        each->MouseDown = [this] { journal += "MouseDown"; };
        each->MouseUp = [this] { journal += "MouseUp"; };
        EXPECT_EQ(after([each] { click(*each); }), "line.LostFocus " + each->name() + ".LostFocus line.GotFocus");
    }
    EXPECT_EQ(form.check.value(), 0);
}

TEST_F(Hands, AListDropsDownWithAnEventInWhichALockCanEnd)
{
    form.locked.DropDown = [this] {
        journal += "DropDown";
        form.locked.setLocked(form.line.text() == "shut");
    };
    form.line.setText("shut");
    stand(form.locked);
    EXPECT_EQ(after([this] { clickArrow(form.locked); }), "DropDown");
    EXPECT_FALSE(isListOpen());
    EXPECT_EQ(after([] { press(Qt::Key_F4); }), "DropDown");
    EXPECT_FALSE(isListOpen());
    form.line.setText("");
    EXPECT_EQ(after([this] { pick(form.locked, "beta"); }), "DropDown locked.Click");
    EXPECT_EQ(form.locked.text(), "beta");
}

TEST_F(Hands, AClickComesWhenAValueTurnsByUserOrCodeAndMouseAndKeyComeUpBehindIt)
{
    form.check.MouseUp = [this] { journal += QString::number(form.check.value()); };
    form.check.KeyUp = [this](int&) { journal += QString::number(form.check.value()); };
    form.garage.MouseUp = [this] { journal += form.garage.value() ? "on" : "off"; };
    EXPECT_EQ(after([this] { click(form.check); }), "line.LostFocus check.GotFocus check.Click 1");
    EXPECT_EQ(after([] { press(Qt::Key_Space); }), "check.Click 0");
    EXPECT_EQ(after([this] { click(form.garage); }), "check.LostFocus garage.GotFocus garage.Click on");
    EXPECT_EQ(after([this] { click(form.garage); }), "on");
    for (const char* happens : {"check.Click house.Click", ""}) {
        form.check.setValue(1);
        form.house.setValue(true);
        EXPECT_EQ(taken(), happens);
    }
    EXPECT_FALSE(form.garage.value());
    EXPECT_EQ(after([this] { form.house.setValue(false); }), "") << "an option clicks when it turns on";
}

TEST_F(Hands, TheRightButtonIsAMouseDownWhereABoxAnswersTheMouse)
{
    EXPECT_TRUE(rightClick(form.line));
    form.line.MouseDown = [this] { journal += "MouseDown"; };
    EXPECT_FALSE(rightClick(form.line));
    EXPECT_EQ(taken(), "MouseDown");
}

TEST_F(Hands, AHeldKeyRepeatsWhatItTypesCountsOnceAndAnswersNoBoxThatItHasOpened)
{
    hold(Qt::Key_A);
    repeat(Qt::Key_A);
    EXPECT_EQ(form.line.text(), "aaaa");
    form.memo.setFocus();
    hold(Qt::Key_Return);
    repeat(Qt::Key_Return, {}, 1);
    EXPECT_EQ(form.memo.text(), "\n\n");
    stand(form.check);
    hold(Qt::Key_Space);
    repeat(Qt::Key_Space);
    letGo(Qt::Key_Space);
    EXPECT_EQ(taken(), "check.Click");
    hold(Qt::Key_F1);
    EXPECT_TRUE(openedHelp());
    repeat(Qt::Key_F1);
    EXPECT_FALSE(openedHelp());

    useRealBoxes();
    form.askAtOk();
    for (const Qt::KeyboardModifiers modifiers : {Qt::KeyboardModifiers(), Qt::KeyboardModifiers(Qt::AltModifier)}) {
        const Qt::Key key = modifiers ? Qt::Key_O : Qt::Key_Return;
        stand(form.line);
        whileModal([key, modifiers] {
            repeat(key, modifiers);
            repeat(Qt::Key_Return);
            press(Qt::Key_Escape);
        });
        hold(key, modifiers);
        repeat(key, modifiers);
        letGo(key, modifiers);
        EXPECT_EQ(taken().remove("line.LostFocus ok.GotFocus "), "No");
    }
    whileModal([] { press(Qt::Key_Return); });
    EXPECT_EQ(after([] { press(Qt::Key_Return); }), "Yes") << "pressed anew";
}

// In some window systems the screen has the keys while a list is open over it.
TEST_F(Hands, AKeyThatClosesAListDoesNothingElse)
{
    for (forms::ComboBox* each : {&form.combo, &form.choice}) {
        stand(*each);
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_F4}) {
            each->openList();
            press(Qt::Key_End);
            EXPECT_TRUE(isListOpen());
            QTest::keyClick(form.window()->windowHandle(), key);
            EXPECT_FALSE(isListOpen());
            EXPECT_EQ(taken(), key == Qt::Key_Return ? each->name() + ".Click" : QString());
        }
        press(Qt::Key_Return);
        EXPECT_EQ(taken(), "ok.Click");
    }
    form.combo.setListIndex(2);
    form.combo.setText("no item");
    stand(form.combo);
    press({Qt::Key_F4, Qt::Key_Escape});
    EXPECT_EQ(form.combo.text() + taken(), "no item");
}

} // namespace
