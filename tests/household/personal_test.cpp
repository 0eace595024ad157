// SPDX-License-Identifier: GPL-3.0-or-later
#include "household/frmIntroduction.h"
#include "household/frmKeyboard.h"
#include "household/household.h"

#include <QRegularExpression>

namespace {

using FirstRun = HouseholdTest;

TEST_F(FirstRun, LeadsByKeysAndCloseBoxFromTheIntroductionToTheMenuWithTheRowSaved)
{
    const auto introduced = [] { return inFile(Data1.rsGeneral, {General::Introduced}) == QStringList("1"); };
    put(Data1.rsGeneral, {{General::City, "7"}});
    screen<frmIntroduction>().show();
    EXPECT_FALSE(introduced());
    press(Qt::Key_Return);
    EXPECT_EQ(line(scene(), introduced()), "18 frmKeyboard: cmdUpdate, true");
    closeBox(screen<frmKeyboard>()); // goes on
    EXPECT_EQ(scene() + shown().join(""), "1 frmGenInfo: txtInfo(1)") << "whatever the row holds";
    EXPECT_EQ(line(personal().cmdBack[0].isEnabled(), personal().lblHead[2].caption()),
        "false, Next, Click Save to Continue:");
    type("Ada\t\tByron");
    accessKey('S');
    EXPECT_EQ(line(scene(), stored().mid(0, 4).join(' ')), "2 frmMain: cmdIn, Byron Ada None None");
    openFromMenu();
    EXPECT_EQ(
        line(personal().cmdBack[0].isEnabled(), personal().lblHead[2].caption()), "true, Second, Click Save to Update");
}

using PersonalEntries = HouseholdTest;

TEST_F(PersonalEntries, LetInWhatTheyTakeHoweverItComesAndHopWhenTheyAreFull)
{
    openFromMenu();
    auto& state = personal().cmbState;
    auto& area = personal().txtInfo[7];
    auto& phone = personal().txtInfo[12];
    const auto erase = [] { press(Qt::Key_End), press(Qt::Key_Backspace); };
    const std::tuple<std::function<void()>, const forms::TextEntry&, QString> steps[] = {
        {[&] { type(area, "20"); }, area, "20 @ txtInfo(7)"}, {[] { type("7555"); }, area, "207 @ txtInfo(9)"},
        {[&] { click(area), erase(); }, area, "20 @ txtInfo(7)"}, // deleting doesn't hop
        {[] { type("8"); }, area, "208 @ txtInfo(8) [555]"}, // retyping does
        {[&] { type(phone, "a(-+ é٣½1"), paste("b(-+ é٣½2"); }, phone, "12 @ txtInfo(12)"},
        {[&] { type(state, "n1 -éЖ"); }, state, "n @ cmbState"}, {[] { type("y"); }, state, "NY @ txtInfo(6)"},
        {backTab, state, "NY @ cmbState [NY]"},
        {[] { press(Qt::Key_End), type("ca"), backTab(); }, state, "CA @ cmbState [CA]"}, // a third begins anew
        {erase, state, " @ cmbState"}, {[] { paste("1t-x"); }, state, "TX @ txtInfo(6)"},
        {[&] { state.setText("me"), click(state), click(area); }, state,
            "ME @ txtInfo(7) [208]"}, // put in order, not typed
    };
    for (const auto& [act, entry, after] : steps) {
        act();
        EXPECT_EQ(entry.text() + " @ " + scene().remove("1 frmGenInfo: "), after);
    }
}

using PersonalRecord = HouseholdTest;

TEST_F(PersonalRecord, HoldsAMarkerForEveryEmptyBoxAndGivesAllElseBackAsItStoodButForStateAndZIP)
{
    const auto save = [] {
        click(personal().cmdContinue[0]);
        EXPECT_EQ(scene(), "2 frmMain: cmdPersonal");
        const QStringList saved = stored();
        openFromMenu();
        return saved;
    };
    for (int entry = 0; entry < 17; ++entry)
        put(Data1.rsGeneral, {{entry, "1"}});
    openFromMenu();
    EXPECT_EQ(shown().join(""), QString(17, '1'));
    for (int entry = 0; entry < 17; ++entry)
        press(Qt::Key_Delete), tab();
    EXPECT_EQ(save().join(' '), "None None None None None None None --- --- ---- --- --- ---- --- --- ---- None");
    EXPECT_EQ(shown().join(""), "");
    const QString last = QString("ß").repeated(50);
    const QString mail =
        " O'Brien \"Bob\"; -- Zoë  שדרות ירושלים 12 🏠👩‍👧" + QString("é@").repeated(105);
    const std::pair<int, QString> pasted[] = {{0, last + "x"}, {1, "---"}, {2, "🦅x"}, {3, "nOnE"}, {4, "----"},
        {5, "me"}, {6, "k1a 0b1"}, {7, "0"}, {16, mail + "x"}};
    for (const auto& [entry, text] : pasted) {
        click(entry == General::State ? static_cast<forms::Control&>(personal().cmbState) : personal().txtInfo[entry]);
        paste(text);
    }
    QStringList expected = {last, "---", "🦅", "nOnE", "----", "ME", "K1A 0B1", "0", "---", "----", "---", "---",
        "----", "---", "---", "----", mail};
    EXPECT_EQ(save(), expected);
    EXPECT_EQ(shown(), expected.replaceInStrings(QRegularExpression("^(-+|nOnE)$"), "")); // what reads as a marker
}

TEST_F(PersonalRecord, StaysUntouchedUntilItsUserSaysYesAndWholeWhereTheFileRefuses)
{
    const QString question = "Any Changes You Have Made Will Be Lost...Continue Anyway?";
    const auto before = stored();
    openFromMenu();
    type(personal().txtInfo[4], "Bangor");
    expectToStay([] { click(personal().cmdBack[0]); }, question);
    EXPECT_EQ(personal().txtInfo[4].text(), "Bangor");
    clickTold(personal().cmdBack[0], question, YesNoQuestion, Answer::Yes);
    EXPECT_EQ(scene(), "2 frmMain: cmdPersonal");
    EXPECT_EQ(stored(), before);
    openFromMenu();
    EXPECT_EQ(personal().txtInfo[4].text(), "");
    type(personal().txtInfo[4], "Bangor");
    expectToStay([] { closeBox(personal()); });
    expectToStay([] { click(personal().cmdExit); });
    refuseWrites("UPDATE", "Personal_Info");
    click(personal().cmdContinue[0]);
    EXPECT_EQ(failedHandler(), "frmGenInfo.cmdContinue(0)_Click");
    EXPECT_EQ(stored(), before);
    makeRoom("Personal_Info");
    expectBox(CloseKestrill, YesNoQuestion, Answer::Yes);
    closeBox(personal());
    EXPECT_EQ(scene(), "1 frmExit");
    EXPECT_EQ(stored().at(General::City), "Bangor");
}

} // namespace
