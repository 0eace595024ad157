// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/frmCalendar.h"
#include "core/frmStartup.h"
#include "household/frmInsInfo.h"
#include "household/household.h"
#include "platform/forms/look.h"

using forms::Answer;
using forms::screen;

namespace {

constexpr General::Column policyColumns[] = {General::PolicyCompany, General::PolicyNumber, General::PolicyExpiration,
    General::PolicyCoverage, General::PolicyNotify};

const QStringList nothingKept = {"None", "None", "None", "$0.00", "No"};

bool isWhollySelected(const forms::TextEntry& box)
{
    return box.selectionStart() == 0 && box.selectionLength() == box.text().length();
}

// Today is 24 November 2026.
class Policy : public ScreenTest {
protected:
    static frmInsInfo& policy() { return screen<frmInsInfo>(); }

    static void store(const QStringList& columns)
    {
        for (int i = 0; i < columns.size(); ++i)
            Data1.rsGeneral.Fields(policyColumns[i]) = columns[i];
        Data1.rsGeneral.Update();
    }

    /// What the file holds.
    static QStringList kept()
    {
        Data1.rsGeneral.Close();
        Data1.rsGeneral.Open();
        QStringList columns;
        for (const General::Column column : policyColumns)
            columns += Data1.rsGeneral.Fields(column).text();
        return columns;
    }

    static QStringList shownPolicy()
    {
        return {policy().txtCompany.text(), policy().txtPolicyNum.text(), policy().txtPolicyExpire.text(),
            policy().txtCoverageAmt.text(), policy().chkNotify.value() == 1 ? "Yes" : "No"};
    }

    static void open()
    {
        click(openFromMenu().cmdInsInfo);
        EXPECT_EQ(forms::activeForm(), &policy());
        EXPECT_FALSE(screen<frmGenInfo>().isVisible());
    }

    static void open(const QStringList& columns)
    {
        store(columns);
        open();
    }

    static bool isTinted(const forms::Control& box) { return box.backColour() == forms::look::colours().error; }

    void expectRefusal()
    {
        expectBox(
            "You Must Select A Future Policy Expiration Date Before Selecting This Option!", forms::box::Exclamation);
    }
    void expectReset()
    {
        expectBox("Date Is Not A Future Date...Resetting The Notification Checkbox!", forms::box::Exclamation);
    }
    void expectQuestion(Answer answer)
    {
        expectBox("Information Has Changed Regarding This Policy, All Changes Will Be Lost...Continue?", yesNoQuestion,
            answer);
    }

    static void expectBack()
    {
        EXPECT_EQ(forms::activeForm(), &screen<frmGenInfo>());
        EXPECT_TRUE(!forms::detail::findScreen(typeid(frmInsInfo)) || !policy().isVisible());
    }
};

TEST_F(Policy, IsTypedSavedAndShownAgain)
{
    auto& personal = openFromMenu();
    type(personal.txtInfo[General::City], "Utica");
    click(personal.cmdInsInfo);
    EXPECT_EQ(stored()[General::City], "Utica"); // what was typed on the way is kept
    EXPECT_EQ(shownPolicy(), nothingKept);
    EXPECT_EQ(frmStartup::CurrentScreen, 8);
    EXPECT_EQ(focused(), "txtCompany");
    EXPECT_TRUE(isWhollySelected(policy().txtCompany));
    type("Mutual\t");
    EXPECT_TRUE(isWhollySelected(policy().txtPolicyNum));
    type("P-1");
    whileModal([] {
        press(Qt::Key_Right);
        press(Qt::Key_Return);
    });
    click(policy().picDate);
    type(policy().txtCoverageAmt, "1234.5");
    expectBox("Your Insurance Information Has Been Updated!", forms::box::Information);
    accessKey('u');
    expectBack();
    EXPECT_EQ(kept(), QStringList({"Mutual", "P-1", "11/25/2026", "$1,234.50", "No"}));
    click(personal.cmdInsInfo);
    EXPECT_EQ(shownPolicy(), kept());
}

TEST_F(Policy, SavesAtOnceWhenTheBoxIsWorkedOnADateThatHasNotPassed)
{
    open({"Mutual", "P-1", "11/24/2026", "$5.00", "No"});
    policy().txtCompany.setFocus();
    type("Other");
    click(policy().chkNotify); // today has not passed
    EXPECT_EQ(kept(), QStringList({"Other", "P-1", "11/24/2026", "$5.00", "Yes"}));
    click(policy().cmdCancel); // nothing differs, nothing is asked
    expectBack();
    click(screen<frmGenInfo>().cmdInsInfo);
    policy().chkNotify.setFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(kept()[4], "No");
}

TEST_F(Policy, RefusesTheBoxOnAPastDateAndOnNone)
{
    open({"Mutual", "P-1", "11/23/2026", "$5.00", "No"});
    policy().txtCompany.setFocus();
    type("Other");
    expectRefusal();
    click(policy().chkNotify);
    EXPECT_EQ(policy().chkNotify.value(), 0);
    EXPECT_TRUE(isTinted(policy().txtPolicyExpire));
    EXPECT_EQ(focused(), "txtPolicyExpire");
    EXPECT_EQ(kept()[0], "Mutual"); // nothing is written
    tab(); // the tint goes with the focus
    EXPECT_FALSE(isTinted(policy().txtPolicyExpire));

    click(policy().cmdClear);
    EXPECT_EQ(shownPolicy(), nothingKept);
    policy().txtCoverageAmt.setFocus();
    expectRefusal(); // at the release of the very Tab that enters
    tab();
    EXPECT_EQ(focused(), "txtPolicyExpire");
    expectQuestion(Answer::No);
    click(policy().cmdCancel);
    EXPECT_FALSE(isTinted(policy().txtPolicyExpire));
    EXPECT_TRUE(policy().isVisible());
    expectQuestion(Answer::Yes);
    accessKey('c');
    expectBack();
    EXPECT_EQ(kept()[0], "Mutual");
}

TEST_F(Policy, ResetsTheBoxWhenAPastDateIsPickedAndKeepsTheRest)
{
    open({"Mutual", "P-1", "11/25/2026", "$5.00", "Yes"});
    EXPECT_EQ(policy().chkNotify.value(), 1);
    expectReset();
    whileModal([] {
        press(Qt::Key_Left);
        press(Qt::Key_Left);
        press(Qt::Key_Return);
    });
    click(policy().txtPolicyExpire);
    EXPECT_EQ(kept(), QStringList({"Mutual", "P-1", "11/23/2026", "$5.00", "No"}));
    EXPECT_TRUE(policy().isEnabled());
}

TEST_F(Policy, TakesItsDateFromTheCalendarAlone)
{
    open({"Mutual", "P-1", "12/25/2026", "$5.00", "No"});
    const auto leaveCalendar = [this] {
        EXPECT_EQ(screen<frmCalendar>().calDate.Day(), 25);
        expectBox("Are You Sure You Want To Close The Calendar?", yesNoQuestion, Answer::Yes);
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
    open({"Mutual", "P-1", "12/25/2026", "$5.00", "Yes"});
    policy().txtCompany.setFocus();
    type("Other");
    type(policy().txtCoverageAmt, "1/2");
    expectBox("Invalid Policy Expiration Date...Be Sure The Format Is mm/dd/yyyy (Example: 12/25/2005)",
        forms::box::Exclamation);
    click(policy().cmdUpdate);
    EXPECT_EQ(focused(), "txtPolicyExpire");
    EXPECT_TRUE(isWhollySelected(policy().txtPolicyExpire));
    EXPECT_EQ(Data1.rsGeneral.Fields(General::PolicyCompany), "Mutual"); // nor left over for the next save
    expectRefusal(); // the same in the other save
    click(policy().chkNotify);
    EXPECT_EQ(kept(), QStringList({"Mutual", "P-1", "12/25/2026", "$5.00", "Yes"}));
}

TEST_F(Policy, TellsASaveThatTheFileRefusesAndKeepsTheRowWhole)
{
    const QStringList row = {"Mutual", "P-1", "12/25/2026", "$5.00", "No"};
    open(row);
    refuseWrites("UPDATE", "Personal_Info");
    policy().txtCompany.setFocus();
    type("Other");
    expectRefusal();
    click(policy().chkNotify);
    EXPECT_EQ(policy().chkNotify.value(), 0);
    expectBox("Invalid Policy Expiration Date...Be Sure The Format Is mm/dd/yyyy (Example: 12/25/2005)",
        forms::box::Exclamation);
    click(policy().cmdUpdate);
    EXPECT_TRUE(policy().isVisible());
    makeRoom("Personal_Info");
    EXPECT_EQ(kept(), row);
    expectBox("Your Insurance Information Has Been Updated!", forms::box::Information);
    click(policy().cmdUpdate);
    EXPECT_EQ(kept()[0], "Other");
}

TEST_F(Policy, EndsAtItsCloseBoxWithoutAQuestionAndBeginsAnew)
{
    open({"Mutual", "P-1", "None", "$5.00", "yes"});
    EXPECT_EQ(policy().chkNotify.value(), 0); // the exact case counts here
    policy().txtCompany.setFocus();
    type("Other");
    policy().txtPolicyNum.setFocus();
    press(Qt::Key_Delete);
    tab();
    EXPECT_EQ(policy().txtPolicyNum.text(), "None");
    closeBox(policy());
    expectBack();
    EXPECT_EQ(kept()[0], "Mutual");
    click(screen<frmGenInfo>().cmdInsInfo);
    EXPECT_EQ(shownPolicy(), QStringList({"Mutual", "P-1", "None", "$5.00", "No"}));
}

} // namespace
