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
    QStringList order;
    for (int stop = 0; stop <= 22; ++stop, tab())
        order += focused().remove("txtInfo");
    EXPECT_EQ(order.join(' '),
        "(1) (2) (0) (3) (4) cmbState (6) (7) (8) (9) (10) (11) (12) (13) (14) (15) (16) "
        "cmdInsInfo cmdBank cmdContinue(0) cmdBack(0) cmdExit (1)");
}

TEST_F(PersonalEntries, HopFromAFullBoxToTheNextWithItsTextSelected)
{
    auto& personal = screen<frmGenInfo>();
    personal.txtInfo[8].setText("555");
    click(personal.txtInfo[7]);
    type("20");
    EXPECT_EQ(focused(), "txtInfo(7)");
    type("7");
    EXPECT_EQ(scene(), "1 frmGenInfo: txtInfo(8) [555]");

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

TEST_F(PersonalEntries, OfTheStateHopOnTheSecondLetterAndBeginANewCodeWithTheThird)
{
    auto& state = screen<frmGenInfo>().cmbState;
    type(state, "n1 -éЖ");
    EXPECT_EQ(state.text(), "n");
    type("y");
    EXPECT_EQ(scene(), "1 frmGenInfo: txtInfo(6)");

    backTab();
    EXPECT_EQ(scene(), "1 frmGenInfo: cmbState [NY]");
    press(Qt::Key_End);
    type("ca");
    backTab();
    EXPECT_EQ(scene(), "1 frmGenInfo: cmbState [CA]");
    press(Qt::Key_End);
    press(Qt::Key_Backspace);
    EXPECT_EQ(state.text() + focused(), "cmbState");
    paste("1t-x");
    EXPECT_EQ(state.text(), "TX");

    state.setText("me"); // as an older row may have it
    click(state);
    click(screen<frmGenInfo>().txtInfo[4]);
    EXPECT_EQ(state.text() + focused(), "MEtxtInfo(4)") << "what is put in order is not typed";
}

} // namespace
