// SPDX-License-Identifier: GPL-3.0-or-later
#include "household/household.h"
#include "platform/storage/statement.h"

using forms::Answer;
using forms::screen;
using ::testing::Each;

namespace {

const QString closeQuestion = "Are You Sure You Want To Close Kestrill?";
const QString cancelQuestion = "Any Changes You Have Made Will Be Lost...Continue Anyway?";

// The row as it stands once every box has been saved empty.
const QStringList emptyRow = {"None", "None", "None", "None", "None", "None", "None", "---", "---", "----", "---",
    "---", "----", "---", "---", "----", "None"};

class PersonalRecord : public ScreenTest {
protected:
    static void save(frmGenInfo& personal)
    {
        click(personal.cmdContinue[0]);
        EXPECT_EQ(scene(), "2 frmMain: cmdPersonal");
    }
};

TEST_F(PersonalRecord, HoldsAMarkerForEveryEmptyBoxAndShowsItEmpty)
{
    store(QStringList(17, "1"));
    auto& personal = openFromMenu();
    ASSERT_THAT(shown(personal), Each(QString("1")));
    for (int entry = 0; entry < 17; ++entry) {
        press(Qt::Key_Delete);
        tab();
    }
    save(personal);
    EXPECT_EQ(stored(), emptyRow);
    openFromMenu();
    EXPECT_THAT(shown(personal), Each(QString()));
}

TEST_F(PersonalRecord, TakesTheMarkersInWhateverBoxTheyStandForEmptyOnes)
{
    auto& personal = openFromMenu();
    type(personal.txtInfo[1], "nOnE");
    type(personal.txtInfo[3], "---");
    type(personal.txtInfo[4], "----");
    type(personal.txtInfo[0], "-----");
    save(personal);
    EXPECT_EQ(stored().mid(0, 5), QStringList({"-----", "nOnE", "None", "---", "----"}));
    openFromMenu();
    EXPECT_EQ(shown(personal).mid(0, 5), QStringList({"-----", "", "", "", ""}));
}

TEST_F(PersonalRecord, GivesTextsBackAsTheyStoodAndFoldsStateAndZIPAlone)
{
    const QString city = QString("ß").repeated(50);
    const QString mail = QString("é@").repeated(127) + "z";
    auto& personal = openFromMenu();
    type(personal.txtInfo[1], " Zoë  ");
    pasteInto(personal.txtInfo[2], "🦅x");
    type(personal.txtInfo[0], "O'Brien \"Bob\"; --");
    pasteInto(personal.txtInfo[3], "שדרות ירושלים 12 🏠👩‍👧");
    pasteInto(personal.txtInfo[4], city);
    type(personal.cmbState, "me");
    type(personal.txtInfo[6], "k1a 0b1");
    type(personal.txtInfo[7], "0");
    pasteInto(personal.txtInfo[16], mail);
    save(personal);
    const QStringList expected = {"O'Brien \"Bob\"; --", " Zoë  ", "🦅",
        "שדרות ירושלים 12 🏠👩‍👧", city, "ME", "K1A 0B1", "0", "---", "----", "---", "---", "----",
        "---", "---", "----", mail};
    EXPECT_EQ(stored(), expected);

    openFromMenu();
    EXPECT_EQ(shown(personal).mid(0, 8), expected.mid(0, 8));
    EXPECT_EQ(personal.txtInfo[16].text(), mail);
}

TEST_F(PersonalRecord, StaysUntouchedByCancelWhichAsksFirst)
{
    const auto before = stored();
    auto& personal = openFromMenu();
    type(personal.txtInfo[4], "Bangor");
    expectBox(cancelQuestion, yesNoQuestion, Answer::No);
    click(personal.cmdBack[0]);
    EXPECT_EQ(scene(), "1 frmGenInfo: cmdBack(0)");
    EXPECT_EQ(personal.txtInfo[4].text(), "Bangor");

    expectBox(cancelQuestion, yesNoQuestion, Answer::Yes);
    click(personal.cmdBack[0]);
    EXPECT_EQ(scene(), "2 frmMain: cmdPersonal");
    EXPECT_EQ(stored(), before);
    openFromMenu();
    EXPECT_EQ(personal.txtInfo[4].text(), "");
}

TEST_F(PersonalRecord, IsSavedByAnEndOfTheProgramOnYesOnly)
{
    const auto before = stored();
    auto& personal = openFromMenu();
    type(personal.txtInfo[4], "Bangor");
    expectBox(closeQuestion, yesNoQuestion, Answer::No);
    closeBox(personal);
    expectBox(closeQuestion, yesNoQuestion, Answer::No);
    click(personal.cmdExit);
    EXPECT_EQ(scene(), "1 frmGenInfo: cmdExit");
    EXPECT_EQ(stored(), before);

    expectBox(closeQuestion, yesNoQuestion, Answer::Yes);
    closeBox(personal);
    EXPECT_EQ(scene(), "1 frmExit");
    Data1.rsGeneral.Open();
    EXPECT_EQ(stored().at(General::City), "Bangor");
}

TEST_F(PersonalRecord, StaysWholeWhenItCannotBeWritten)
{
    const auto before = stored();
    auto& personal = openFromMenu();
    type(personal.txtInfo[1], "Ada");
    type(personal.txtInfo[16], "ada@example.org");
    storage::execute(Data1.Home.handle(),
        "CREATE TEMP TRIGGER NoRoom AFTER UPDATE ON Personal_Info BEGIN SELECT RAISE(ABORT, 'no room'); END");
    click(personal.cmdContinue[0]);
    const auto failure = reportedFailure();
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->handler, "frmGenInfo.cmdContinue(0)_Click");
    EXPECT_EQ(stored(), before);
}

} // namespace
