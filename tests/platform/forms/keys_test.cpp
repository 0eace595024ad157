// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

namespace {

using Keys = FormInFront<AllKinds>;

TEST_F(Keys, DownComesBeforePressBeforeUpInEveryControl)
{
    for (forms::Control* each : form.controls()) {
        each->KeyDown = [this](int& keyCode) { journal.note(QString("down%1").arg(keyCode)); };
        each->KeyPress = [this](int& keyAscii) { journal.note(QString("press%1").arg(keyAscii)); };
        each->KeyUp = [this](int& keyCode) { journal.note(QString("up%1").arg(keyCode)); };
        stand(*each);
        type("z"); // no item begins with it
        EXPECT_EQ(journal.taken(), "down90 press122 up90") << each->name().toStdString();
    }
}

TEST_F(Keys, RefusedInKeyDownReachNothing)
{
    form.setHelpNumber(7);
    form.choice.setListIndex(0);
    form.ok.setEnabled(false);
    for (forms::Control* each : form.controls()) {
        if (each == &form.ok)
            continue;
        forms::behaviours::noKeys(*each);
        each->KeyPress = [this](int&) { journal.note("KeyPress"); };
        stand(*each);
        type("a \n");
        press(Qt::Key_Down);
        press(Qt::Key_F1);
        EXPECT_EQ(journal.taken(), "") << each->name().toStdString();
        EXPECT_FALSE(openedHelp()) << each->name().toStdString();
    }
    EXPECT_EQ(form.line.text() + form.memo.text() + form.combo.text() + form.choice.text(), "alpha");
    EXPECT_FALSE(form.house.value() || form.garage.value() || form.check.value());
}

TEST_F(Keys, TabAndAccessKeysMoveOnWhateverIsRefused)
{
    for (forms::Control* each : form.controls())
        forms::behaviours::noKeys(*each);
    tab();
    EXPECT_EQ(journal.taken(), "line.LostFocus empty.GotFocus");
    backTab();
    EXPECT_EQ(journal.taken(), "empty.LostFocus line.GotFocus");
    accessKey('o');
    EXPECT_EQ(journal.taken(), "line.LostFocus ok.GotFocus ok.Click");
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
        EXPECT_EQ(journal.taken(), "ok.Click ok.Click") << "and the focus stays at " << each->name().toStdString();
        EXPECT_TRUE(each->hasFocus());
    }
    stand(form.memo);
    type("a\nb");
    EXPECT_EQ(form.memo.text() + journal.taken(), "a\nb");
    stand(form.other);
    press(Qt::Key_Return);
    EXPECT_EQ(journal.taken(), "other.Click");
}

TEST_F(Keys, F1OpensTheTopicOfTheControlOrElseOfTheForm)
{
    form.setHelpNumber(1001);
    for (forms::Control* each : form.controls()) {
        stand(*each);
        press(Qt::Key_F1);
        EXPECT_EQ(openedHelp(), 1001) << each->name().toStdString();
        each->setHelpNumber(2001);
        press(Qt::Key_F1);
        EXPECT_EQ(openedHelp(), 2001) << each->name().toStdString();
    }
    TrialForm bare("Bare", journal); // no control that can have the focus
    forms::Label words{bare, "words", "Nothing to type here"};
    bare.layOut({&words});
    bare.setHelpNumber(3001);
    bare.show();
    press(Qt::Key_F1);
    EXPECT_EQ(openedHelp(), 3001);
    press(Qt::Key_A);
    EXPECT_FALSE(openedHelp());
}

} // namespace
