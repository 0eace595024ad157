// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

namespace {

class Activation : public FormsTest {
protected:
    Journal journal;
    TwoBoxes first{"First", journal};
    TwoBoxes second{"Second", journal};
};

TEST_F(Activation, OfOneScreenFollowsTheDeactivationOfTheOther)
{
    first.show();
    journal.taken();
    second.show();
    EXPECT_EQ(journal.taken(), "First.Deactivate Second.Activate one.GotFocus");
    first.hide();
    EXPECT_EQ(journal.taken(), "") << "a screen behind goes without an event";
    EXPECT_FALSE(first.isVisible());
}

TEST_F(Activation, OfAModalScreenAndBackOfItsOwner)
{
    first.answers["ok.Click"] = [this] {
        second.show_Modal(first);
        journal.note("returned");
    };
    second.answers["ok.Click"] = [this] {
        second.hide();
        second.show_Modal(first); // an event in between: the first call hasn't returned yet
    };
    first.show();
    journal.taken();
    whileModal([this] {
        EXPECT_EQ(journal.taken(), "one.LostFocus ok.GotFocus First.Deactivate Second.Activate one.GotFocus");
        type("x");
        click(second.ok);
    });
    click(first.ok);
    EXPECT_EQ(journal.taken(), "one.LostFocus ok.GotFocus Second.Deactivate First.Activate returned");
    EXPECT_EQ(second.one.text(), "x");
    EXPECT_TRUE(first.ok.hasFocus());
}

} // namespace
