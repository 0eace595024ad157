// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

#include <QTest>

namespace {

// Presses on other parts of a control than its middle, keys that are held, clicks that come twice.
using Hands = FormInFront<AllKinds>;

TEST_F(Hands, TheFocusComesAtThePressWhateverPartItIsOn)
{
    struct Press {
        const char* control;
        std::function<void()> press;
        const char* next;
    };
    const Press presses[] = {
        {"empty", [this] { clickArrow(form.empty); }, "combo"},
        {"combo", [this] { clickArrow(form.combo); }, "locked"},
        {"combo", [this] { clickAt(form.combo, QPoint()); }, "locked"},
        {"locked", [this] { clickArrow(form.locked); }, "choice"},
        {"choice", [this] { clickArrow(form.choice); }, "memo"},
        {"memo", [this] { clickScrollBar(form.memo); }, "check"},
        {"memo", [this] { EXPECT_TRUE(rightClick(form.memo)); }, "check"},
    };
    for (const auto& [control, press, next] : presses) {
        stand(form.line);
        press();
        EXPECT_EQ(journal.taken(), QString("line.LostFocus %1.GotFocus").arg(control));
        if (isListOpen())
            ::press(Qt::Key_Escape);
        tab();
        EXPECT_EQ(journal.taken(), QString("%1.LostFocus %2.GotFocus").arg(control, next));
    }
}

TEST_F(Hands, TheSecondClickBringsTheFocusWhereTheFirstHasClosedAList)
{
    clickArrow(form.combo);
    journal.taken();
    EXPECT_TRUE(isListOpen());
    click(form.line);
    EXPECT_FALSE(isListOpen());
    clickAgain();
    EXPECT_EQ(journal.taken(), "combo.LostFocus line.GotFocus line.Click");
    EXPECT_TRUE(form.line.hasFocus());
}

TEST_F(Hands, ABoxThatTheFocusBringsComesOnceWithNoListBehindIt)
{
    useRealBoxes();
    for (forms::ComboBox* each : {&form.combo, &form.choice}) {
        form.answers[each->name() + ".GotFocus"] = [this] {
            form.note("box");
            forms::MsgBox("Mind this", forms::box::Information, "Title");
        };
        stand(form.line);
        whileModal([] { clickInBox("OK"); });
        clickArrow(*each);
        EXPECT_EQ(journal.taken(), "line.LostFocus box") << each->name().toStdString();
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
        each->MouseDown = [this] { form.note("MouseDown"); };
        each->MouseUp = [this] { form.note("MouseUp"); };
        click(*each);
        EXPECT_EQ(journal.taken(), "line.LostFocus " + each->name() + ".LostFocus line.GotFocus");
    }
    EXPECT_EQ(form.check.value(), 0);
}

TEST_F(Hands, AListDropsDownWithAnEventInWhichALockCanEnd)
{
    form.locked.DropDown = [this] {
        form.note("DropDown");
        form.locked.setLocked(form.line.text() == "shut");
    };
    form.line.setText("shut");
    stand(form.locked);
    for (const auto& opens :
        std::initializer_list<std::function<void()>>{[this] { clickArrow(form.locked); }, [] { press(Qt::Key_F4); }}) {
        form.locked.setLocked(true);
        opens();
        EXPECT_EQ(journal.taken(), "DropDown");
        EXPECT_FALSE(isListOpen());
    }
    form.line.setText("");
    pick(form.locked, "beta");
    EXPECT_EQ(journal.taken(), "DropDown locked.Click");
    EXPECT_EQ(form.locked.text(), "beta");
}

TEST_F(Hands, AClickComesWhenAValueTurnsByUserOrCodeAndMouseAndKeyComeUpBehindIt)
{
    form.check.MouseUp = [this] { form.note(QString::number(form.check.value())); };
    form.check.KeyUp = [this](int&) { form.note(QString::number(form.check.value())); };
    form.garage.MouseUp = [this] { form.note(form.garage.value() ? "on" : "off"); };
    click(form.check);
    EXPECT_EQ(journal.taken(), "line.LostFocus check.GotFocus check.Click 1");
    press(Qt::Key_Space);
    EXPECT_EQ(journal.taken(), "check.Click 0");
    click(form.garage);
    click(form.garage);
    EXPECT_EQ(journal.taken(), "check.LostFocus garage.GotFocus garage.Click on on");
    for (int times = 0; times < 2; ++times) {
        form.check.setValue(1);
        form.house.setValue(true);
    }
    EXPECT_EQ(journal.taken(), "check.Click house.Click");
    EXPECT_FALSE(form.garage.value());
    form.house.setValue(false);
    EXPECT_EQ(journal.taken(), "") << "an option clicks when it turns on";
}

TEST_F(Hands, TheRightButtonIsAMouseDownWhereABoxAnswersTheMouse)
{
    EXPECT_TRUE(rightClick(form.line));
    form.line.MouseDown = [this] { form.note("MouseDown"); };
    EXPECT_FALSE(rightClick(form.line));
    EXPECT_EQ(journal.taken(), "MouseDown");
}

TEST_F(Hands, ADoubleClickIsOneClickAndADoubleClick)
{
    form.memo.setText("word");
    form.memo.DblClick = [this] { form.note("DblClick"); };
    click(form.memo);
    clickAgain();
    EXPECT_EQ(journal.taken(), "line.LostFocus memo.GotFocus memo.Click DblClick");
}

TEST_F(Hands, AHeldKeyCountsOnceAndAnswersNoBoxThatItHasOpened)
{
    useRealBoxes();
    form.askAt("ok.Click");
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
        EXPECT_EQ(journal.taken().remove("line.LostFocus ok.GotFocus "), "No");
    }
    whileModal([] { press(Qt::Key_Return); });
    press(Qt::Key_Return);
    EXPECT_EQ(journal.taken(), "Yes") << "pressed anew";
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
            EXPECT_EQ(journal.taken(), key == Qt::Key_Return ? each->name() + ".Click" : QString());
        }
        press(Qt::Key_Return);
        EXPECT_EQ(journal.taken(), "ok.Click");
    }
}

TEST_F(Hands, AHeldKeyRepeatsWhatItTypesAndNothingElse)
{
    hold(Qt::Key_A);
    repeat(Qt::Key_A);
    EXPECT_EQ(form.line.text(), "aaaa");
    form.memo.setFocus();
    hold(Qt::Key_Return);
    repeat(Qt::Key_Return, {}, 1);
    EXPECT_EQ(form.memo.text(), "\n\n");
    stand(form.check);
    struct Key {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        const char* once;
    };
    for (const auto& [key, modifiers, once] :
        {Key{Qt::Key_Space, {}, "check.Click"}, Key{Qt::Key_Return, {}, "ok.Click"},
            Key{Qt::Key_O, Qt::AltModifier, "check.LostFocus ok.GotFocus ok.Click"},
            Key{Qt::Key_Return, {}, "ok.Click"}}) {
        hold(key, modifiers);
        repeat(key, modifiers);
        letGo(key, modifiers);
        EXPECT_EQ(journal.taken(), once);
    }
    hold(Qt::Key_F1);
    EXPECT_TRUE(openedHelp());
    repeat(Qt::Key_F1);
    EXPECT_FALSE(openedHelp());
}

TEST_F(Hands, TheSecondClickOfADoubleClickPressesNothingOnAnotherScreen)
{
    AllKinds other(journal);
    form.answers["ok.Click"] = [&other] { other.show(); };
    click(form.ok);
    journal.taken();
    clickAgain();
    EXPECT_EQ(journal.taken(), "");
    click(other.ok);
    EXPECT_EQ(journal.taken(), "line.LostFocus ok.GotFocus ok.Click");
}

} // namespace
