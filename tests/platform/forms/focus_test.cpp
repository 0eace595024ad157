// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

#include <QWindow>

namespace {

class Focus : public FormInFront<TwoBoxes> {
protected:
    TwoBoxes other{journal, "Other"};
};

TEST_F(Focus, SetOnAFormThatIsNotInFrontIsTakenWhenItComes)
{
    EXPECT_EQ(after([this] { other.two.setFocus(); }), "");
    EXPECT_FALSE(other.two.hasFocus());
    EXPECT_EQ(other.activeControl(), &other.two);
    EXPECT_EQ(after([this] { other.show(); }), "Form.Deactivate Other.Activate two.GotFocus");
    EXPECT_EQ(after([this] { form.two.setFocus(); }), "");
    EXPECT_EQ(after([this] { form.show(); }), "Other.Deactivate Form.Activate one.LostFocus two.GotFocus");
    EXPECT_EQ(after([this] { other.hide(); }), "") << "a screen behind goes without an event";
    EXPECT_FALSE(other.isVisible());
}

TEST_F(Focus, AndActivationDoNotStirForABoxAMenuOrAnotherProgram)
{
    useRealBoxes();
    form.askAt("ok.Click");
    form.ok.setDefault(true);
    for (const auto& [key, answer] : {std::pair(Qt::Key_Return, "Yes"), std::pair(Qt::Key_Escape, "No")}) {
        whileModal([pressed = key] { press(pressed); });
        EXPECT_EQ(after([] { press(Qt::Key_Return); }), answer);
        type("x");
    }
    pasteByMenu(form.one, "y");
    QWindow another; // belongs to no screen
    another.show();
    for (QWindow* window : {&another, form.window()->windowHandle()}) {
        window->requestActivate();
        settle();
    }
    type("z");
    EXPECT_EQ(journal.taken(), "");
    EXPECT_EQ(form.one.text(), "xxyz");
}

TEST_F(Focus, OfAModalScreenAndBackOfItsOwner)
{
    form.answers["ok.Click"] = [this] {
        other.show_Modal(form);
        journal.note("returned");
    };
    other.answers["ok.Click"] = [this] {
        other.hide();
        other.show_Modal(form); // an event in between: the first call hasn't returned yet
    };
    whileModal([this] {
        EXPECT_EQ(journal.taken(), "one.LostFocus ok.GotFocus Form.Deactivate Other.Activate one.GotFocus");
        type("x");
        click(other.ok);
    });
    click(form.ok);
    EXPECT_EQ(journal.taken(), "one.LostFocus ok.GotFocus Other.Deactivate Form.Activate returned");
    EXPECT_EQ(other.one.text(), "x");
    EXPECT_TRUE(form.ok.hasFocus());
}

} // namespace
