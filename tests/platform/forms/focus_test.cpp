// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

namespace {

using Focus = FormInFront<TwoBoxes>;

TEST_F(Focus, LeavesOneControlBeforeItComesToTheOther)
{
    tab();
    EXPECT_EQ(journal.taken(), "one.LostFocus two.GotFocus");
    backTab();
    EXPECT_EQ(journal.taken(), "two.LostFocus one.GotFocus");
    click(form.two);
    EXPECT_EQ(journal.taken(), "one.LostFocus two.GotFocus two.Click");
    click(form.ok);
    EXPECT_EQ(journal.taken(), "two.LostFocus ok.GotFocus ok.Click");
}

TEST_F(Focus, SetOnAFormThatIsNotInFrontIsTakenWhenItComes)
{
    TwoBoxes other(journal, "Other");
    other.two.setFocus();
    EXPECT_EQ(journal.taken(), "");
    EXPECT_FALSE(other.two.hasFocus());
    EXPECT_EQ(other.activeControl(), &other.two);
    other.show();
    EXPECT_EQ(journal.taken(), "Form.Deactivate Other.Activate two.GotFocus");
    form.two.setFocus();
    EXPECT_EQ(journal.taken(), "");
    form.show();
    EXPECT_EQ(journal.taken(), "Other.Deactivate Form.Activate one.LostFocus two.GotFocus");
}

TEST_F(Focus, AndActivationDoNotStirForABoxAMenuOrAnotherProgram)
{
    useRealBoxes();
    form.askAt("ok.Click");
    form.ok.setDefault(true);
    for (const auto& [key, answer] : {std::pair(Qt::Key_Return, "Yes"), std::pair(Qt::Key_Escape, "No")}) {
        whileModal([pressed = key] { press(pressed); });
        press(Qt::Key_Return);
        EXPECT_EQ(journal.taken(), answer);
        type("x");
    }
    pasteByMenu(form.one, "y");
    visitAnotherProgram();
    EXPECT_EQ(journal.taken(), "");
    type("z");
    EXPECT_EQ(form.one.text(), "xxyz");
}

class Activation : public FormInFront<TwoBoxes> {
protected:
    TwoBoxes second{journal, "Second"};
};

TEST_F(Activation, OfOneScreenFollowsTheDeactivationOfTheOther)
{
    second.show();
    EXPECT_EQ(journal.taken(), "Form.Deactivate Second.Activate one.GotFocus");
    form.hide();
    EXPECT_EQ(journal.taken(), "") << "a screen behind goes without an event";
    EXPECT_FALSE(form.isVisible());
}

TEST_F(Activation, OfAModalScreenAndBackOfItsOwner)
{
    form.answers["ok.Click"] = [this] {
        second.show_Modal(form);
        journal.note("returned");
    };
    second.answers["ok.Click"] = [this] {
        second.hide();
        second.show_Modal(form); // an event in between: the first call hasn't returned yet
    };
    whileModal([this] {
        EXPECT_EQ(journal.taken(), "one.LostFocus ok.GotFocus Form.Deactivate Second.Activate one.GotFocus");
        type("x");
        click(second.ok);
    });
    click(form.ok);
    EXPECT_EQ(journal.taken(), "one.LostFocus ok.GotFocus Second.Deactivate Form.Activate returned");
    EXPECT_EQ(second.one.text(), "x");
    EXPECT_TRUE(form.ok.hasFocus());
}

} // namespace
