// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

using forms::ComboStyle;

namespace {

/// Boxes with more to press on than their text.
class Parts : public TrialForm {
public:
    explicit Parts(Journal& journal)
        : TrialForm("Parts", journal)
    {
        ok.setCaption("&OK");
        layOut({&line, &empty, &filled, &locked, &choice, &memo, &check, &house, &garage, &ok});
        for (forms::ComboBox* each : {&filled, &locked, &choice})
            each->addItems({"alpha", "beta"});
        locked.setLocked(true);
        ok.setDefault(true);
        watchFocusAndClicks();
    }

    forms::TextBox line{*this, "line"};
    forms::ComboBox empty{*this, "empty"};
    forms::ComboBox filled{*this, "filled"};
    forms::ComboBox locked{*this, "locked"};
    forms::ComboBox choice{*this, "choice", ComboStyle::PickOnly};
    forms::MemoBox memo{*this, "memo"};
    forms::CheckBox check{*this, "check"};
    forms::OptionButton house{*this, "house"};
    forms::OptionButton garage{*this, "garage"};
    forms::CommandButton ok{*this, "ok"};
};

class Hands : public FormsTest {
protected:
    void SetUp() override
    {
        FormsTest::SetUp();
        form.show();
        journal.taken();
    }

    Journal journal;
    Parts form{journal};
};

TEST_F(Hands, TheFocusComesAtThePressWhateverPartItIsOn)
{
    struct Press {
        forms::Control& control;
        std::function<void()> press;
        forms::Control& next;
    };
    const Press presses[] = {
        {form.empty, [this] { clickArrow(form.empty); }, form.filled},
        {form.filled, [this] { clickArrow(form.filled); }, form.locked},
        {form.filled,
            [this] {
                clickAt(form.filled, {0, 0});
            },
            form.locked},
        {form.locked, [this] { clickArrow(form.locked); }, form.choice},
        {form.choice, [this] { clickArrow(form.choice); }, form.memo},
        {form.memo, [this] { clickScrollBar(form.memo); }, form.check},
        {form.memo, [this] { EXPECT_TRUE(rightClick(form.memo)); }, form.check},
    };
    for (const auto& [control, press, next] : presses) {
        form.line.setFocus();
        journal.taken();
        press();
        EXPECT_EQ(journal.taken(), "line.LostFocus " + control.name() + ".GotFocus");
        if (isListOpen())
            ::press(Qt::Key_Escape);
        tab();
        EXPECT_EQ(journal.taken(), control.name() + ".LostFocus " + next.name() + ".GotFocus");
    }
}

TEST_F(Hands, TheSecondClickBringsTheFocusWhereTheFirstHasClosedAList)
{
    clickArrow(form.filled);
    journal.taken();
    EXPECT_TRUE(isListOpen());
    click(form.line);
    EXPECT_FALSE(isListOpen());
    clickAgain();
    EXPECT_EQ(journal.taken(), "filled.LostFocus line.GotFocus line.Click");
    EXPECT_TRUE(form.line.hasFocus());
}

TEST_F(Hands, ABoxThatTheFocusBringsComesOnceWithNoListBehindIt)
{
    useRealBoxes();
    for (forms::ComboBox* each : {&form.filled, &form.choice}) {
        form.answers[each->name() + ".GotFocus"] = [this] {
            form.note("box");
            forms::MsgBox("Mind this", forms::box::Information, "Title");
        };
        form.line.setFocus();
        journal.taken();
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
        journal.taken();
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
    form.locked.setFocus();
    journal.taken();
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

TEST_F(Hands, MouseAndKeyComeUpWhenTheValueHasTurned)
{
    form.check.MouseUp = [this] { form.note(QString::number(form.check.value())); };
    form.check.KeyUp = [this](int&) { form.note(QString::number(form.check.value())); };
    form.garage.MouseUp = [this] { form.note(form.garage.value() ? "on" : "off"); };
    click(form.check);
    EXPECT_EQ(journal.taken(), "line.LostFocus check.GotFocus check.Click 1");
    press(Qt::Key_Space);
    EXPECT_EQ(journal.taken(), "check.Click 0");
    click(form.garage);
    EXPECT_EQ(journal.taken(), "check.LostFocus garage.GotFocus garage.Click on");
    form.garage.setValue(false);
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

// ---- keys that are held, clicks that come twice

TEST_F(Hands, AHeldKeyCountsOnceAndAnswersNoBoxThatItHasOpened)
{
    useRealBoxes();
    form.answers["ok.Click"] = [this] {
        const auto answer = forms::MsgBox("Sure?", forms::box::Question + forms::box::YesNo, "Title");
        form.note(answer == forms::Answer::Yes ? "Yes" : "No");
    };
    for (const Qt::KeyboardModifiers modifiers : {Qt::KeyboardModifiers(), Qt::KeyboardModifiers(Qt::AltModifier)}) {
        const Qt::Key key = modifiers ? Qt::Key_O : Qt::Key_Return;
        form.line.setFocus();
        journal.taken();
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

TEST_F(Hands, AHeldKeyRepeatsWhatItTypesAndNothingElse)
{
    hold(Qt::Key_A);
    repeat(Qt::Key_A);
    EXPECT_EQ(form.line.text(), "aaaa");
    form.memo.setFocus();
    hold(Qt::Key_Return);
    repeat(Qt::Key_Return, {}, 1);
    EXPECT_EQ(form.memo.text(), "\n\n");
    form.check.setFocus();
    journal.taken();
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
    Parts other(journal);
    form.answers["ok.Click"] = [&other] { other.show(); };
    click(form.ok);
    journal.taken();
    clickAgain();
    EXPECT_EQ(journal.taken(), "");
    click(other.ok);
    EXPECT_EQ(journal.taken(), "line.LostFocus ok.GotFocus ok.Click");
}

} // namespace
