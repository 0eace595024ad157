// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/frmCalendar.h"
#include "household/frmInsInfo.h"
#include "household/household.h"
#include "platform/forms/look.h"

#include <QRegularExpression>

namespace {

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

    /// What the screen shows, with a "!" where the date is marked as wrong, and what stands before the user.
    static QString shownPolicy()
    {
        const bool isTinted = policy().txtPolicyExpire.backColour() == forms::look::colours().error;
        return contents(policy()).remove(QRegularExpression("txt\\w+=| locked")) + (isTinted ? "! @ " : " @ ")
            + scene();
    }

    static void open()
    {
        openFromMenu();
        type(personal().txtInfo[General::City], "Utica");
        click(personal().cmdInsInfo);
    }

    // Opens a policy that is kept, and changes its company.
    static void openAndChange(const char* expiration, const char* notify, const char* company = "Other")
    {
        put(Data1.rsGeneral,
            {{General::PolicyCompany, "Mutual"}, {General::PolicyNumber, "P-1"},
                {General::PolicyExpiration, expiration}, {General::PolicyCoverage, "$5.00"},
                {General::PolicyNotify, notify}});
        open();
        type(company);
    }

    // Moves from the date on show to another one, and takes it.
    void takeDate(const std::vector<Qt::Key>& keys)
    {
        whileModal([keys] { press(keys), type("\n"); });
        click(policy().picDate);
    }

    const QString Back = "1 frmGenInfo: cmdInsInfo";
};

TEST_F(Policy, IsKeptFromTheFirstOneOnWhereverTheBoxIsWorkedOnADateThatHasNotPassed)
{
    open();
    EXPECT_EQ(stored()[General::City], "Utica") << "what was typed on the way is kept";
    EXPECT_EQ(shownPolicy(), "None, None, None, $0.00 @ 8 frmInsInfo: txtCompany [None]");
    type("Mutual");
    type(policy().txtCoverageAmt, "1000");
    takeDate({Qt::Key_Right}); // from today on
    click(policy().chkNotify);
    EXPECT_EQ(line(kept(), policy().txtCoverageAmt.text()), "Mutual|None|11/25/2026|$1,000.00|Yes, $1,000.00");
    takeDate({Qt::Key_Left}); // today has not passed
    clickTold(policy().cmdUpdate, Updated, Information);
    EXPECT_EQ(kept() + scene(), "Mutual|None|11/24/2026|$1,000.00|Yes" + Back);
    click(personal().cmdInsInfo);
    policy().chkNotify.setFocus();
    for (const char* notify : {"No", "Yes"}) {
        press(Qt::Key_Space);
        EXPECT_EQ(kept(), "Mutual|None|11/24/2026|$1,000.00|" + QString(notify));
    }
    click(policy().cmdClear);
    EXPECT_EQ(shownPolicy(), "None, None, None, $0.00 @ 8 frmInsInfo: cmdClear");
    clickTold(policy().cmdUpdate, Updated, Information);
    EXPECT_EQ(kept(), "None|None|None|$0.00|No");
}

TEST_F(Policy, IsNotLostWithoutAQuestionWhicheverOfItsFieldsDiffersButByItsCloseBox)
{
    const std::function<void()> changes[] = {[] { type(policy().txtCompany, "O"); },
        [] { type(policy().txtPolicyNum, "O"); }, [this] { takeDate({Qt::Key_Right}); },
        [] { type(policy().txtCoverageAmt, "7"); },
        [] { Data1.rsGeneral.Fields(General::PolicyNotify) = "yes", Data1.rsGeneral.Update(); }};
    openAndChange("12/25/2026", "No", "MUTUAL"); // which is the same
    click(policy().cmdCancel);
    for (const auto& change : changes) {
        EXPECT_EQ(scene(), Back);
        click(personal().cmdInsInfo);
        change();
        expectToStay([] { click(policy().cmdCancel); }, LoseQuestion);
        clickTold(policy().cmdCancel, LoseQuestion, YesNoQuestion, Answer::Yes);
    }
    click(personal().cmdInsInfo);
    policy().txtPolicyNum.setFocus();
    press(Qt::Key_Delete);
    tab();
    EXPECT_EQ(shownPolicy(), "Mutual, None, 12/25/2026, $5.00 @ 8 frmInsInfo: txtPolicyExpire [12/25/2026]");
    closeBox(policy()); // the one way out that asks nothing
    EXPECT_EQ(kept() + scene(), "Mutual|P-1|12/25/2026|$5.00|yes" + Back);
    click(personal().cmdInsInfo);
    EXPECT_EQ(scene(), "8 frmInsInfo: txtCompany [Mutual]") << "a new screen, which begins anew";
}

TEST_F(Policy, RefusesTheBoxOnAPastDateAndOnNone)
{
    openAndChange("11/23/2026", "Yes");
    click(policy().chkNotify); // off
    const QString before = kept();
    EXPECT_EQ(before, "Other|P-1|11/23/2026|$5.00|No");
    type(policy().txtCompany, "Third");
    clickTold(policy().chkNotify, Refused, Exclamation);
    EXPECT_EQ(shownPolicy(), "Third, P-1, 11/23/2026, $5.00! @ 8 frmInsInfo: txtPolicyExpire [11/23/2026]");
    EXPECT_EQ(kept(), before);
    tab(); // the tint goes with the focus
    click(policy().cmdClear);
    policy().txtCoverageAmt.setFocus();
    expectBox(Refused, Exclamation); // at the release of the very Tab that enters
    tab();
    EXPECT_EQ(shownPolicy(), "None, None, None, $0.00! @ 8 frmInsInfo: txtPolicyExpire [None]");
    expectBox(LoseQuestion, YesNoQuestion, Answer::Yes);
    accessKey('c');
    EXPECT_EQ(kept() + scene(), before + Back);
}

TEST_F(Policy, TakesItsDateFromTheCalendarAloneAndResetsTheBoxOnAPastOne)
{
    openAndChange("12/25/2026", "Yes");
    const auto leaveCalendar = [this] {
        EXPECT_EQ(screen<frmCalendar>().calDate.Day(), 25);
        expectBox("Are You Sure You Want To Close The Calendar?", YesNoQuestion, Answer::Yes);
        type(" ");
    };
    const std::function<void()> opens[] = {[] { click(policy().txtPolicyExpire); }, [] { type("5"); },
        [] { press(Qt::Key_Backspace); }, [] { paste("1/1/2030"); }};
    for (const auto& open : opens) {
        whileModal(leaveCalendar);
        open();
    }
    press(Qt::Key_Delete);
    press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(shownPolicy(), "Other, P-1, 12/25/2026, $5.00, chkNotify on @ 8 frmInsInfo: txtPolicyExpire");
    expectBox("Date Is Not A Future Date...Resetting The Notification Checkbox!", Exclamation);
    takeDate({Qt::Key_PageUp, Qt::Key_PageUp});
    EXPECT_EQ(kept(), "Other|P-1|10/25/2026|$5.00|No");
}

TEST_F(Policy, TellsAnAmountThatIsNoneOrTooLargeAndAFileThatRefusesAndKeepsTheRowWhole)
{
    openAndChange("12/25/2026", "Yes");
    for (const QString amount : {"1/2", "99999999999999999999", "7"}) {
        if (amount == "7")
            refuseWrites("UPDATE", "Personal_Info");
        type(policy().txtCoverageAmt, amount);
        clickTold(policy().cmdUpdate,
            "Invalid Policy Expiration Date...Be Sure The Format Is mm/dd/yyyy (Example: 12/25/2005)", Exclamation);
        EXPECT_EQ(scene(), "8 frmInsInfo: txtPolicyExpire [12/25/2026]");
        EXPECT_EQ(Data1.rsGeneral.Fields(General::PolicyCompany), "Mutual") << "nor left over for the next save";
        clickTold(policy().chkNotify, Refused, Exclamation); // the same in the other save
        EXPECT_EQ(policy().chkNotify.value(), 0);
        EXPECT_EQ(kept(), "Mutual|P-1|12/25/2026|$5.00|Yes");
        policy().txtCoverageAmt.setText({});
    }
    makeRoom("Personal_Info");
    clickTold(policy().cmdUpdate, Updated, Information);
    EXPECT_EQ(kept() + scene(), "Other|P-1|12/25/2026|None|No" + Back);
}

} // namespace
