// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/frmCalendar.h"
#include "household/frmInsInfo.h"
#include "household/household.h"
#include "platform/forms/look.h"

using forms::Answer;
using forms::screen;

namespace {

const char* const BadExpiration =
    "Invalid Policy Expiration Date...Be Sure The Format Is mm/dd/yyyy (Example: 12/25/2005)";
const char* const Updated = "Your Insurance Information Has Been Updated!";
const char* const Refused = "You Must Select A Future Policy Expiration Date Before Selecting This Option!";
const char* const LoseQuestion = "Information Has Changed Regarding This Policy, All Changes Will Be Lost...Continue?";

// Today is 24 November 2026.
class Policy : public HouseholdTest {
protected:
    static frmInsInfo& policy() { return screen<frmInsInfo>(); }

    /// What the file holds: "company|number|expiration|coverage|notify".
    static QString kept()
    {
        return inFile(Data1.rsGeneral,
            {General::PolicyCompany, General::PolicyNumber, General::PolicyExpiration, General::PolicyCoverage,
                General::PolicyNotify})
            .join('|');
    }

    static QString shownPolicy()
    {
        return QStringList({policy().txtCompany.text(), policy().txtPolicyNum.text(), policy().txtPolicyExpire.text(),
                               policy().txtCoverageAmt.text(), policy().chkNotify.value() == 1 ? "Yes" : "No"})
            .join('|');
    }

    // Opens a policy, and changes its company.
    static void openAndChange(const char* expiration, const char* notify)
    {
        put(Data1.rsGeneral,
            {{General::PolicyCompany, "Mutual"}, {General::PolicyNumber, "P-1"},
                {General::PolicyExpiration, expiration}, {General::PolicyCoverage, "$5.00"},
                {General::PolicyNotify, notify}});
        openFromMenu();
        click(personal().cmdInsInfo);
        EXPECT_EQ(scene(), "8 frmInsInfo: txtCompany [Mutual]");
        type("Other");
    }

    static bool isTinted() { return policy().txtPolicyExpire.backColour() == forms::look::colours().error; }

    void expectRefusal() { expectBox(Refused, Exclamation); }

    static void expectBack() { EXPECT_EQ(scene(), "1 frmGenInfo: cmdInsInfo"); }
};

TEST_F(Policy, IsTypedSavedAndShownAgain)
{
    openFromMenu();
    type(personal().txtInfo[General::City], "Utica");
    click(personal().cmdInsInfo);
    EXPECT_EQ(stored()[General::City],
        "Utica"); // what was typed on the way is kept
    EXPECT_EQ(shownPolicy(), "None|None|None|$0.00|No");
    EXPECT_EQ(scene(), "8 frmInsInfo: txtCompany [None]");
    type("Mutual\t");
    EXPECT_EQ(scene(), "8 frmInsInfo: txtPolicyNum [None]");
    type("P-1");
    whileModal([] {
        press(Qt::Key_Right);
        press(Qt::Key_Return);
    });
    click(policy().picDate);
    type(policy().txtCoverageAmt, "1234.5");
    expectBox(Updated, Information);
    accessKey('u');
    expectBack();
    EXPECT_EQ(kept(), "Mutual|P-1|11/25/2026|$1,234.50|No");
    click(personal().cmdInsInfo);
    EXPECT_EQ(shownPolicy(), kept());
}

TEST_F(Policy, SavesAtOnceWhenTheBoxIsWorkedOnADateThatHasNotPassed)
{
    openAndChange("11/24/2026", "No");
    click(policy().chkNotify); // today has not passed
    EXPECT_EQ(kept(), "Other|P-1|11/24/2026|$5.00|Yes");
    click(policy().cmdCancel); // nothing differs, nothing is asked
    expectBack();
    click(personal().cmdInsInfo);
    policy().chkNotify.setFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(kept(), "Other|P-1|11/24/2026|$5.00|No");
}

TEST_F(Policy, RefusesTheBoxOnAPastDateAndOnNone)
{
    openAndChange("11/23/2026", "No");
    const QString before = kept();
    clickTold(policy().chkNotify, Refused, Exclamation);
    EXPECT_EQ(shownPolicy(), "Other|P-1|11/23/2026|$5.00|No");
    EXPECT_TRUE(isTinted());
    EXPECT_EQ(focused(), "txtPolicyExpire");
    EXPECT_EQ(kept(), before); // nothing is written
    tab(); // the tint goes with the focus
    EXPECT_FALSE(isTinted());

    click(policy().cmdClear);
    EXPECT_EQ(shownPolicy(), "None|None|None|$0.00|No");
    policy().txtCoverageAmt.setFocus();
    expectRefusal(); // at the release of the very Tab that enters
    tab();
    EXPECT_EQ(focused(), "txtPolicyExpire");
    expectToStay([] { click(policy().cmdCancel); }, LoseQuestion);
    EXPECT_FALSE(isTinted());
    expectBox(LoseQuestion, YesNoQuestion, Answer::Yes);
    accessKey('c');
    expectBack();
    EXPECT_EQ(kept(), before);
}

TEST_F(Policy, ResetsTheBoxWhenAPastDateIsPickedAndKeepsTheRest)
{
    openAndChange("11/25/2026", "Yes");
    EXPECT_EQ(policy().chkNotify.value(), 1);
    whileModal([] {
        press(Qt::Key_Left);
        press(Qt::Key_Left);
        press(Qt::Key_Return);
    });
    clickTold(
        policy().txtPolicyExpire, "Date Is Not A Future Date...Resetting The Notification Checkbox!", Exclamation);
    EXPECT_EQ(kept(), "Other|P-1|11/23/2026|$5.00|No");
    EXPECT_TRUE(policy().isEnabled());
}

TEST_F(Policy, TakesItsDateFromTheCalendarAlone)
{
    openAndChange("12/25/2026", "No");
    const auto leaveCalendar = [this] {
        EXPECT_EQ(screen<frmCalendar>().calDate.Day(), 25);
        expectBox("Are You Sure You Want To Close The Calendar?", YesNoQuestion, Answer::Yes);
        press(Qt::Key_Space);
    };
    policy().txtPolicyExpire.setFocus();
    for (const Qt::Key key : {Qt::Key_5, Qt::Key_Backspace}) {
        whileModal(leaveCalendar);
        press(key);
    }
    press(Qt::Key_Delete);
    press(Qt::Key_X, Qt::ControlModifier);
    whileModal(leaveCalendar);
    paste("1/1/2030");
    EXPECT_EQ(policy().txtPolicyExpire.text(), "12/25/2026");
}

TEST_F(Policy, TellsAnAmountThatIsNoneAndStoresNothingOfIt)
{
    openAndChange("12/25/2026", "Yes");
    type(policy().txtCoverageAmt, "1/2");
    clickTold(policy().cmdUpdate, BadExpiration, Exclamation);
    EXPECT_EQ(scene(), "8 frmInsInfo: txtPolicyExpire [12/25/2026]");
    EXPECT_EQ(Data1.rsGeneral.Fields(General::PolicyCompany),
        "Mutual"); // nor left over for the next save
    clickTold(policy().chkNotify, Refused,
        Exclamation); // the same in the other save
    EXPECT_EQ(kept(), "Mutual|P-1|12/25/2026|$5.00|Yes");
}

TEST_F(Policy, TellsASaveThatTheFileRefusesAndKeepsTheRowWhole)
{
    openAndChange("12/25/2026", "No");
    refuseWrites("UPDATE", "Personal_Info");
    clickTold(policy().chkNotify, Refused, Exclamation);
    EXPECT_EQ(policy().chkNotify.value(), 0);
    clickTold(policy().cmdUpdate, BadExpiration, Exclamation);
    EXPECT_TRUE(policy().isVisible());
    makeRoom("Personal_Info");
    EXPECT_EQ(kept(), "Mutual|P-1|12/25/2026|$5.00|No");
    clickTold(policy().cmdUpdate, Updated, Information);
    EXPECT_EQ(kept(), "Other|P-1|12/25/2026|$5.00|No");
}

TEST_F(Policy, EndsAtItsCloseBoxWithoutAQuestionAndBeginsAnew)
{
    openAndChange("None", "yes");
    EXPECT_EQ(policy().chkNotify.value(), 0); // the exact case counts here
    policy().txtPolicyNum.setFocus();
    press(Qt::Key_Delete);
    tab();
    EXPECT_EQ(policy().txtPolicyNum.text(), "None");
    closeBox(policy());
    expectBack();
    EXPECT_EQ(kept(), "Mutual|P-1|None|$5.00|yes");
    click(personal().cmdInsInfo);
    EXPECT_EQ(shownPolicy(), "Mutual|P-1|None|$5.00|No");
}

} // namespace
