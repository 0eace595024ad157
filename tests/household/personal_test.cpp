// SPDX-License-Identifier: GPL-3.0-or-later
#include "household/frmIntroduction.h"
#include "household/frmKeyboard.h"
#include "household/household.h"

using forms::Answer;
using forms::screen;

namespace {

const QString CancelQuestion = "Any Changes You Have Made Will Be Lost...Continue Anyway?";

class FirstRun : public HouseholdTest {
protected:
    FirstRun() { screen<frmIntroduction>().show(); }

    static bool introduced() { return inFile(Data1.rsGeneral, {General::Introduced}) == QStringList("1"); }
};

TEST_F(FirstRun, LeadsByKeysAloneFromTheIntroductionToTheMenuWithTheRowSaved)
{
    store("7");
    EXPECT_FALSE(introduced());
    press(Qt::Key_Return);
    EXPECT_EQ(scene(), "18 frmKeyboard: cmdUpdate");
    EXPECT_TRUE(introduced());
    press(Qt::Key_Return);
    EXPECT_EQ(scene(), "1 frmGenInfo: txtInfo(1)");
    EXPECT_FALSE(personal().cmdBack[0].isEnabled());
    EXPECT_EQ(shown().join(""), "") << "whatever the row holds";

    type("Ada\t\tByron");
    accessKey('S');
    EXPECT_EQ(scene(), "2 frmMain: cmdIn");
    EXPECT_EQ(stored().mid(0, 4), QStringList({"Byron", "Ada", "None", "None"}));
    openFromMenu();
    EXPECT_TRUE(personal().cmdBack[0].isEnabled());
}

TEST_F(FirstRun, ComesAgainWhenTheIntroductionIsClosed)
{
    screen<frmKeyboard>().show();
    closeBox(screen<frmKeyboard>()); // goes on
    EXPECT_EQ(scene(), "1 frmGenInfo: txtInfo(1); frmIntroduction");
    personal().hide();
    expectBox(CloseKestrill, YesNoQuestion, forms::Answer::Yes);
    closeBox(screen<frmIntroduction>());
    EXPECT_EQ(scene(), "1 frmExit");
    EXPECT_FALSE(introduced());
}

class PersonalEntries : public HouseholdTest {
protected:
    PersonalEntries() { openFromMenu(); }

    static QString box(int index) { return personal().txtInfo[index].text(); }
};

TEST_F(PersonalEntries, FollowEachOtherInTheOrderOfTheTabKey)
{
    QStringList order;
    for (int stop = 0; stop <= 22; ++stop, tab())
        order += focused().remove("txtInfo");
    EXPECT_EQ(order.join(' '),
        "(1) (2) (0) (3) (4) cmbState (6) (7) (8) (9) (10) (11) (12) (13) (14) (15) (16) cmdInsInfo cmdBank "
        "cmdContinue(0) cmdBack(0) cmdExit (1)");
}

TEST_F(PersonalEntries, HopFromAFullBoxToTheNextWithItsTextSelected)
{
    personal().txtInfo[8].setText("555");
    click(personal().txtInfo[7]);
    type("20");
    EXPECT_EQ(focused(), "txtInfo(7)");
    type("7");
    EXPECT_EQ(scene(), "1 frmGenInfo: txtInfo(8) [555]");
    backTab();
    press(Qt::Key_End);
    press(Qt::Key_Backspace);
    EXPECT_EQ(box(7) + focused(), "20txtInfo(7)") << "deleting doesn't hop";
    type("8");
    EXPECT_EQ(box(7) + focused(), "208txtInfo(8)") << "retyping does";
}

TEST_F(PersonalEntries, OfPhonesLetNothingInButDigitsHoweverItComes)
{
    auto& phone = personal().txtInfo[12];
    type(phone, "a(-+ é٣½1");
    EXPECT_EQ(phone.text(), "1");
    paste("b(-+ é٣½2");
    EXPECT_EQ(phone.text(), "12");
    press(Qt::Key_Backspace);
    press(Qt::Key_Backspace);
    EXPECT_EQ(phone.text(), "");
}

TEST_F(PersonalEntries, OfTheStateHopOnTheSecondLetterAndBeginANewCodeWithTheThird)
{
    auto& state = personal().cmbState;
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
    click(personal().txtInfo[4]);
    EXPECT_EQ(state.text() + focused(), "MEtxtInfo(4)") << "what is put in order is not typed";
}

class PersonalRecord : public HouseholdTest {
protected:
    static void save()
    {
        click(personal().cmdContinue[0]);
        EXPECT_EQ(scene(), "2 frmMain: cmdPersonal");
    }

    static void pasteInto(forms::TextEntry& box, const QString& text)
    {
        click(box);
        paste(text);
    }
};

TEST_F(PersonalRecord, HoldsAMarkerForEveryEmptyBoxAndShowsItEmpty)
{
    store("1");
    openFromMenu();
    EXPECT_EQ(shown().join(""), QString(17, '1'));
    for (int entry = 0; entry < 17; ++entry) {
        press(Qt::Key_Delete);
        tab();
    }
    save();
    EXPECT_EQ(stored().join(' '), "None None None None None None None --- --- ---- --- --- ---- --- --- ---- None");
    openFromMenu();
    EXPECT_EQ(shown().join(""), "");
}

TEST_F(PersonalRecord, TakesTheMarkersInWhateverBoxTheyStandForEmptyOnes)
{
    openFromMenu();
    type(personal().txtInfo[1], "nOnE");
    type(personal().txtInfo[3], "---");
    type(personal().txtInfo[4], "----");
    type(personal().txtInfo[0], "-----");
    save();
    EXPECT_EQ(stored().mid(0, 5), QStringList({"-----", "nOnE", "None", "---", "----"}));
    openFromMenu();
    EXPECT_EQ(shown().mid(0, 5), QStringList({"-----", "", "", "", ""}));
}

TEST_F(PersonalRecord, GivesTextsBackAsTheyStoodAndFoldsStateAndZIPAlone)
{
    const QString city = QString("ß").repeated(50);
    const QString mail = QString("é@").repeated(127) + "z";
    openFromMenu();
    type(personal().txtInfo[1], " Zoë  ");
    pasteInto(personal().txtInfo[2], "🦅x");
    type(personal().txtInfo[0], "O'Brien \"Bob\"; --");
    pasteInto(personal().txtInfo[3], "שדרות ירושלים 12 🏠👩‍👧");
    pasteInto(personal().txtInfo[4], city);
    type(personal().cmbState, "me");
    type(personal().txtInfo[6], "k1a 0b1");
    type(personal().txtInfo[7], "0");
    pasteInto(personal().txtInfo[16], mail);
    save();
    const QStringList expected = {"O'Brien \"Bob\"; --", " Zoë  ", "🦅",
        "שדרות ירושלים 12 🏠👩‍👧", city, "ME", "K1A 0B1", "0", "---", "----", "---", "---", "----",
        "---", "---", "----", mail};
    EXPECT_EQ(stored(), expected);
    openFromMenu();
    EXPECT_EQ(shown().mid(0, 8) + QStringList(shown().last()), expected.mid(0, 8) + QStringList(mail));
}

TEST_F(PersonalRecord, StaysUntouchedByCancelWhichAsksFirst)
{
    const auto before = stored();
    openFromMenu();
    type(personal().txtInfo[4], "Bangor");
    expectToStay([] { click(personal().cmdBack[0]); }, CancelQuestion);
    EXPECT_EQ(personal().txtInfo[4].text(), "Bangor");
    clickTold(personal().cmdBack[0], CancelQuestion, YesNoQuestion, Answer::Yes);
    EXPECT_EQ(scene(), "2 frmMain: cmdPersonal");
    EXPECT_EQ(stored(), before);
    openFromMenu();
    EXPECT_EQ(personal().txtInfo[4].text(), "");
}

TEST_F(PersonalRecord, IsSavedByAnEndOfTheProgramOnYesOnly)
{
    const auto before = stored();
    openFromMenu();
    type(personal().txtInfo[4], "Bangor");
    expectToStay([] { closeBox(personal()); });
    expectToStay([] { click(personal().cmdExit); });
    EXPECT_EQ(stored(), before);
    expectBox(CloseKestrill, YesNoQuestion, Answer::Yes);
    closeBox(personal());
    EXPECT_EQ(scene(), "1 frmExit");
    EXPECT_EQ(stored().at(General::City), "Bangor");
}

TEST_F(PersonalRecord, StaysWholeWhenItCannotBeWritten)
{
    const auto before = stored();
    openFromMenu();
    type(personal().txtInfo[1], "Ada");
    type(personal().txtInfo[16], "ada@example.org");
    refuseWrites("UPDATE", "Personal_Info");
    click(personal().cmdContinue[0]);
    EXPECT_EQ(failedHandler(), "frmGenInfo.cmdContinue(0)_Click");
    EXPECT_EQ(stored(), before);
}

} // namespace
