// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

namespace {

/// One control of every kind that takes keys.
class AllKinds : public TrialForm {
public:
    explicit AllKinds(Journal& journal)
        : TrialForm("AllKinds", journal)
    {
        option.setCaption("Choice");
        check.setCaption("Tick");
        other.setCaption("Other");
        ok.setCaption("OK");
        list.addItems({"first", "second"});
        layOut({&line, &memo, &combo, &list, &option, &check, &other, &ok});
        ok.setDefault(true);
        watchFocusAndClicks();
    }

    forms::TextBox line{*this, "line"};
    forms::MemoBox memo{*this, "memo"};
    forms::ComboBox combo{*this, "combo"};
    forms::ComboBox list{*this, "list", forms::ComboStyle::PickOnly};
    forms::OptionButton option{*this, "option"};
    forms::CheckBox check{*this, "check"};
    forms::CommandButton other{*this, "other"};
    forms::CommandButton ok{*this, "ok"};
};

class Keys : public FormsTest {
protected:
    void SetUp() override
    {
        FormsTest::SetUp();
        form.show();
    }

    /// Puts the focus there and forgets what has happened until then.
    void stand(forms::Control& control)
    {
        control.setFocus();
        journal.taken();
    }

    void noteKeys(forms::Control& control)
    {
        control.KeyDown = [this](int& keyCode) { journal.note(QString("down%1").arg(keyCode)); };
        control.KeyPress = [this](int& keyAscii) { journal.note(QString("press%1").arg(keyAscii)); };
        control.KeyUp = [this](int& keyCode) { journal.note(QString("up%1").arg(keyCode)); };
    }

    Journal journal;
    AllKinds form{journal};
};

TEST_F(Keys, DownComesBeforePressBeforeUpInEveryControl)
{
    for (forms::Control* each : form.controls()) {
        noteKeys(*each);
        stand(*each);
        type("a");
        EXPECT_EQ(journal.taken(), "down65 press97 up65") << each->name().toStdString();
    }
}

TEST_F(Keys, RefusedInKeyDownReachNothing)
{
    form.setHelpNumber(7);
    form.list.setListIndex(0);
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
    EXPECT_EQ(form.line.text() + form.memo.text() + form.combo.text(), "");
    EXPECT_EQ(form.list.listIndex(), 0);
    EXPECT_FALSE(form.option.value());
    EXPECT_EQ(form.check.value(), 0);
}

TEST_F(Keys, TabAndAccessKeysMoveOnWhateverIsRefused)
{
    form.ok.setCaption("&Leave");
    for (forms::Control* each : form.controls())
        forms::behaviours::noKeys(*each);
    stand(form.line);
    tab();
    EXPECT_EQ(journal.taken(), "line.LostFocus memo.GotFocus");
    backTab();
    EXPECT_EQ(journal.taken(), "memo.LostFocus line.GotFocus");
    accessKey('l');
    EXPECT_EQ(journal.taken(), "line.LostFocus ok.GotFocus ok.Click");
}

TEST_F(Keys, TheDefaultButtonAnswersEnterAndTheFocusStays)
{
    for (forms::Control* each : form.controls()) {
        if (each == &form.memo || each == &form.other || each == &form.ok)
            continue;
        each->KeyPress = [](int& keyAscii) { keyAscii = forms::key::Refused; };
        stand(*each);
        press(Qt::Key_Return);
        EXPECT_EQ(journal.taken(), "ok.Click") << each->name().toStdString();
        press(Qt::Key_Enter, Qt::KeypadModifier);
        EXPECT_EQ(journal.taken(), "ok.Click") << each->name().toStdString();
        EXPECT_TRUE(each->hasFocus());
    }
}

TEST_F(Keys, EnterBelongsToTheMemoAndToTheButtonThatHasTheFocus)
{
    stand(form.memo);
    type("a\nb");
    EXPECT_EQ(form.memo.text(), "a\nb");
    EXPECT_EQ(journal.taken(), "");
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
}

TEST_F(Keys, F1OpensTheFormsTopicWhereNoControlHasTheFocus)
{
    TrialForm bare("Bare", journal);
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
