// SPDX-License-Identifier: GPL-3.0-or-later
#include "household/household.h"

#include <functional>

using forms::screen;

namespace {

class PersonalEntries : public ScreenTest {
protected:
    void SetUp() override
    {
        ScreenTest::SetUp();
        openFromMenu();
    }

    static QString box(int index) { return screen<frmGenInfo>().txtInfo[index].text(); }
};

TEST_F(PersonalEntries, FollowEachOtherInTheOrderOfTheTabKey)
{
    const QStringList order = {"txtInfo(1)", "txtInfo(2)", "txtInfo(0)", "txtInfo(3)", "txtInfo(4)", "cmbState",
        "txtInfo(6)", "txtInfo(7)", "txtInfo(8)", "txtInfo(9)", "txtInfo(10)", "txtInfo(11)", "txtInfo(12)",
        "txtInfo(13)", "txtInfo(14)", "txtInfo(15)", "txtInfo(16)", "cmdInsInfo", "cmdBank", "cmdContinue(0)",
        "cmdBack(0)", "cmdExit"};
    for (const QString& name : order) {
        EXPECT_EQ(focused(), name);
        tab();
    }
    EXPECT_EQ(focused(), "txtInfo(1)");
}

TEST_F(PersonalEntries, HopFromAFullBoxToTheNextWithItsTextSelected)
{
    auto& personal = screen<frmGenInfo>();
    personal.txtInfo[8].setText("555");
    click(personal.txtInfo[7]);
    type("20");
    EXPECT_EQ(focused(), "txtInfo(7)");
    type("7");
    EXPECT_EQ(focused(), "txtInfo(8)");
    EXPECT_TRUE(isWhollySelected(personal.txtInfo[8]));

    backTab();
    press(Qt::Key_End);
    press(Qt::Key_Backspace);
    EXPECT_EQ(box(7), "20");
    EXPECT_EQ(focused(), "txtInfo(7)") << "deleting doesn't hop";
    type("8");
    EXPECT_EQ(box(7), "208");
    EXPECT_EQ(focused(), "txtInfo(8)") << "retyping does";
}

TEST_F(PersonalEntries, OfPhonesLetNothingInButDigitsHoweverItComes)
{
    auto& box = screen<frmGenInfo>().txtInfo[12];
    const std::function<void(const QString&)> ways[] = {
        [](const QString& text) { type(text); },
        [](const QString& text) { paste(text); },
        [](const QString& text) { pasteByShiftInsert(text); },
        [](const QString& text) { commit(text); },
        [&box](const QString& text) { pasteByMenu(box, text); },
        [&box](const QString& text) { drop(box, text); },
    };
    for (const auto& way : ways) {
        click(box);
        way("a(-+ é٣½1");
        EXPECT_EQ(box.text(), "1");
        press(Qt::Key_Backspace);
        EXPECT_EQ(box.text(), "");
    }
}

class StateBox : public PersonalEntries {
protected:
    void SetUp() override
    {
        PersonalEntries::SetUp();
        click(screen<frmGenInfo>().cmbState);
    }

    static QString state() { return screen<frmGenInfo>().cmbState.text(); }
};

TEST_F(StateBox, HopsOnTheSecondLetterAndBeginsANewCodeWithTheThird)
{
    type("n1 -éЖ");
    EXPECT_EQ(state(), "n");
    type("y");
    EXPECT_EQ(focused(), "txtInfo(6)");
    EXPECT_EQ(state(), "NY");

    backTab();
    EXPECT_TRUE(isWhollySelected(screen<frmGenInfo>().cmbState));
    press(Qt::Key_End);
    type("ca");
    EXPECT_EQ(state(), "CA");
    backTab();
    press(Qt::Key_End);
    press(Qt::Key_Backspace);
    EXPECT_EQ(state(), "");
    EXPECT_EQ(focused(), "cmbState");
    paste("1t-x");
    EXPECT_EQ(state(), "TX");
}

} // namespace
