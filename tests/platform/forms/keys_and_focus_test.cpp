// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

#include <QWindow>

namespace {

// ---- keys

using Keys = FormInFront;

TEST_F(Keys, DownComesBeforePressBeforeUpInEveryControl)
{
    for (forms::Control* each : form.controls()) {
        each->KeyDown = [this](int& keyCode) { journal += QString("down%1").arg(keyCode); };
        each->KeyPress = [this](int& keyAscii) { journal += QString("press%1").arg(keyAscii); };
        each->KeyUp = [this](int& keyCode) { journal += QString("up%1").arg(keyCode); };
        stand(*each);
        type("z"); // no item begins with it
        EXPECT_EQ(taken(), "down90 press122 up90") << each->name().toStdString();
    }
}

TEST_F(Keys, RefusedInKeyDownReachNothingButTabAndAccessKeysMoveOn)
{
    form.setHelpNumber(7);
    form.choice.setListIndex(0);
    form.ok.setEnabled(false);
    for (forms::Control* each : form.controls()) {
        forms::behaviours::noKeys(*each);
        each->KeyPress = [this](int&) { journal += "KeyPress"; };
        if (each == &form.ok)
            continue;
        stand(*each);
        type("a \n");
        press(Qt::Key_Down);
        press(Qt::Key_F1);
        EXPECT_EQ(taken(), "") << each->name().toStdString();
        EXPECT_FALSE(openedHelp()) << each->name().toStdString();
    }
    EXPECT_EQ(form.line.text() + form.memo.text() + form.combo.text() + form.choice.text(), "alpha");
    EXPECT_FALSE(form.house.value() || form.garage.value() || form.check.value());
    form.ok.setEnabled(true);
    stand(form.line);
    EXPECT_EQ(after(tab), "line.LostFocus empty.GotFocus");
    EXPECT_EQ(after(backTab), "empty.LostFocus line.GotFocus");
    EXPECT_EQ(after([] { accessKey('o'); }), "line.LostFocus ok.GotFocus ok.Click");
}

TEST_F(Keys, TheDefaultButtonAnswersEnterButInTheMemoAndOnAnotherButton)
{
    for (forms::Control* each : form.controls()) {
        if (each == &form.memo || each == &form.other || each == &form.ok)
            continue;
        each->KeyPress = [](int& keyAscii) { keyAscii = forms::key::Refused; };
        stand(*each);
        press(Qt::Key_Return);
        press(Qt::Key_Enter, Qt::KeypadModifier);
        EXPECT_EQ(taken(), "ok.Click ok.Click") << "and the focus stays at " << each->name().toStdString();
    }
    stand(form.memo);
    EXPECT_EQ(after([] { type("a\nb"); }), "");
    EXPECT_EQ(form.memo.text(), "a\nb");
    stand(form.other);
    EXPECT_EQ(after([] { press(Qt::Key_Return); }), "other.Click");
}

// ---- focus and activation

using Focus = FormInFront;

TEST_F(Focus, SetOnAFormThatIsNotInFrontIsTakenWhenItComes)
{
    TrialForm other(journal, "Other");
    EXPECT_EQ(after([&other] { other.memo.setFocus(); }), "");
    EXPECT_FALSE(other.memo.hasFocus());
    EXPECT_EQ(other.activeControl(), &other.memo);
    EXPECT_EQ(after([&other] { other.show(); }), "Form.Deactivate Other.Activate memo.GotFocus");
    EXPECT_EQ(after([this] { form.memo.setFocus(); }), "");
    EXPECT_EQ(after([this] { form.show(); }), "Other.Deactivate Form.Activate line.LostFocus memo.GotFocus");
    EXPECT_EQ(after([&other] { other.hide(); }), "") << "a screen behind goes without an event";
    EXPECT_FALSE(other.isVisible());
}

TEST_F(Focus, AndActivationDoNotStirForABoxAMenuOrAnotherProgram)
{
    useRealBoxes();
    form.askAtOk();
    for (const auto& [key, answer] : {std::pair(Qt::Key_Return, "Yes"), std::pair(Qt::Key_Escape, "No")}) {
        whileModal([pressed = key] { press(pressed); });
        EXPECT_EQ(after([] { press(Qt::Key_Return); }), answer);
        type("x");
    }
    pasteByMenu(form.line, "y");
    QWindow another; // belongs to no screen
    another.show();
    for (QWindow* window : {&another, form.window()->windowHandle()}) {
        window->requestActivate();
        settle();
    }
    type("z");
    EXPECT_EQ(taken(), "");
    EXPECT_EQ(form.line.text(), "xxyz");
}

TEST_F(Focus, OfAModalScreenAndBackOfItsOwner)
{
    TrialForm other(journal, "Other");
    form.answers["ok.Click"] = [&] {
        other.show_Modal(form);
        journal += "returned";
    };
    other.answers["ok.Click"] = [&] {
        other.hide();
        other.show_Modal(form); // an event in between: the first call hasn't returned yet
    };
    whileModal([&] {
        EXPECT_EQ(taken(), "line.LostFocus ok.GotFocus Form.Deactivate Other.Activate line.GotFocus");
        type("x");
        click(other.ok);
    });
    click(form.ok);
    EXPECT_EQ(taken(), "line.LostFocus ok.GotFocus Other.Deactivate Form.Activate returned");
    EXPECT_EQ(other.line.text(), "x");
    EXPECT_TRUE(form.ok.hasFocus());
}

} // namespace
