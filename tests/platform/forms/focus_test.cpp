// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

namespace {

class Focus : public FormsTest {
protected:
    void SetUp() override
    {
        FormsTest::SetUp();
        form.show();
        journal.taken();
    }

    Journal journal;
    TwoBoxes form{"Form", journal};
};

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
    TwoBoxes other("Other", journal);
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

TEST_F(Focus, AndActivationDoNotStirForAMessageBox)
{
    useRealBoxes();
    form.answers["ok.Click"] = [this] {
        const auto answer = forms::MsgBox("Sure?", forms::box::Question + forms::box::YesNo, "Title");
        form.note(answer == forms::Answer::Yes ? "Yes" : "No");
    };
    form.ok.setDefault(true);
    for (const auto& [key, answer] : {std::pair(Qt::Key_Return, "Yes"), std::pair(Qt::Key_Escape, "No")}) {
        whileModal([pressed = key] { press(pressed); });
        press(Qt::Key_Return);
        EXPECT_EQ(journal.taken(), answer);
        type("x");
    }
    EXPECT_EQ(form.one.text(), "xx");
}

TEST_F(Focus, AndActivationDoNotStirForAContextMenuOrAnotherProgram)
{
    pasteByMenu(form.one, "x");
    EXPECT_EQ(journal.taken(), "");
    visitAnotherProgram();
    EXPECT_EQ(journal.taken(), "");
    type("y");
    EXPECT_EQ(form.one.text(), "xy");
}

} // namespace
