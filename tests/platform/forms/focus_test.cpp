// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

namespace {

class Focus : public FormInFront {
protected:
    TrialForm other{journal, "Other"};
};

TEST_F(Focus, SetOnAFormThatIsNotInFrontIsTakenWhenItComes)
{
    EXPECT_EQ(after([this] { other.memo.setFocus(); }), "");
    EXPECT_FALSE(other.memo.hasFocus());
    EXPECT_EQ(other.activeControl(), &other.memo);
    EXPECT_EQ(after([this] { other.show(); }), "Form.Deactivate Other.Activate memo.GotFocus");
    EXPECT_EQ(after([this] { form.memo.setFocus(); }), "");
    EXPECT_EQ(after([this] { form.show(); }), "Other.Deactivate Form.Activate line.LostFocus memo.GotFocus");
    EXPECT_EQ(after([this] { other.hide(); }), "") << "a screen behind goes without an event";
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
    visitAnotherProgram();
    type("z");
    EXPECT_EQ(taken(), "");
    EXPECT_EQ(form.line.text(), "xxyz");
}

TEST_F(Focus, OfAModalScreenAndBackOfItsOwner)
{
    form.answers["ok.Click"] = [this] {
        other.show_Modal(form);
        journal += "returned";
    };
    other.answers["ok.Click"] = [this] {
        other.hide();
        other.show_Modal(form); // an event in between: the first call hasn't returned yet
    };
    whileModal([this] {
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
