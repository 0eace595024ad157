// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounts/frmBank.h"
#include "accounts/frmEditBankBoxes.h"
#include "frame/frmMain.h"
#include "household/frmGenInfo.h"
#include "shared/frmCalendar.h"
#include "support/harness.h"

using forms::screen;

namespace {

// Today is 24 November 2026.
class Accounts : public ScreenTest {
protected:
    static frmEditBankBoxes& menu() { return screen<frmEditBankBoxes>(); }
    static frmBank& account() { return screen<frmBank>(); }

    static void addRows(const QStringList& rows)
    {
        for (const QString& row : rows)
            addRow(Data1.rsBank, Bank::FinancialInstitution, row.split('|'));
    }

    static void open(int mode)
    {
        screen<frmGenInfo>().show();
        click(screen<frmGenInfo>().cmdBank);
        click(menu().optEdit[mode]);
        click(menu().cmdUpdate);
    }
};

TEST_F(Accounts, AreGoneThrough)
{
    screen<frmMain>().show();
    replay("accounts/accounts.txt");
}

TEST_F(Accounts, AreGoneThroughWhereSomeAreThere)
{
    addRows({"None|x|1|2|3|7|R|1 lakh|soon|Safe|None|me",
        "First Bank|1 Main St|315|555|0100|a-1|R1|$1234.50|5/6/2026|Savings|Utica|NY",
        "B|x|1|2|3|8|R|$1.00|soon|Safe|c|ME", "Second Bank|None|None|None|None|A-1|None|None|None|None|None|None"});
    screen<frmMain>().show();
    replay("accounts/several.txt");
}

TEST_F(Accounts, HaveOneScreenThatSaysWhatItDoesAndWaitsForTheCalendar)
{
    const char* const modes[] = {"&Add New Account;  Click Here To Add A New Financial Account ",
        "&Update Account;  Click Here To Update Financial Account ",
        "&Delete Account;  Click Here To Delete Financial Account "};
    addRows({"B|x|1|2|3|8|R|$1.00|soon|Safe|c|ME"});
    for (int mode = 0; mode < 3; ++mode) {
        open(mode);
        EXPECT_EQ(account().cmdState.caption() + "; " + account().cmdState.toolTip(), modes[mode]);
        EXPECT_EQ(account().cmdBack.helpNumber(), 41001 + 1000 * mode);
        click(account().cmdBack);
    }
    click(screen<frmGenInfo>().cmdBank);
    menu().AccountMode = 3;
    clickTold(menu().cmdUpdate, "You Must Select An Option Before Continuing!", Exclamation);
    click(menu().cmdCancel);
    open(0);
    click(account().txtPhone1);
    press({Qt::Key_3, Qt::Key_1});
    hold(Qt::Key_5);
    EXPECT_EQ(scene(), "7 frmBank: txtPhone1") << "hops with the release, not before";
    letGo(Qt::Key_5);
    whileModal([] {
        EXPECT_EQ(scene(), "19 frmCalendar: calDate; frmBank");
        EXPECT_FALSE(account().isEnabled() || account().cmdBack.isEnabled() || account().cmdState.isEnabled());
        press(Qt::Key_Return);
    });
    click(account().picDate);
    EXPECT_TRUE(account().isEnabled() && account().cmdBack.isEnabled() && account().cmdState.isEnabled());
}

TEST_F(Accounts, ShowAndKeepABalanceWithACommaAtEachThousand)
{
    addRows({"Old|x|1|2|3|7|R|$1,34.50|soon|Safe|c|ME", "New|x|1|2|3|8|R|$250,000.00|soon|Safe|c|ME"});
    open(1);
    EXPECT_EQ(account().txtBalance.text(), "$134.50");
    click(account().cmdNext);
    click(account().txtBalance);
    press({Qt::Key_Home, Qt::Key_Right, Qt::Key_Delete, Qt::Key_End});
    press({Qt::Key_Left, Qt::Key_Left, Qt::Key_Left, Qt::Key_Backspace});
    EXPECT_EQ(account().txtBalance.text(), "$50,00.00");
    clickTold(account().cmdState, "          Account Has Been Updated!", Exclamation);
    EXPECT_EQ(columnOf(Data1.rsBank, Bank::AvailableBalance).join(' '), "$1,34.50 $5,000.00");
}

TEST_F(Accounts, AreCutToTheLengthOfTheirColumns)
{
    const QString much = QString("1b").repeated(200);
    open(0);
    for (forms::TextEntry* box :
        std::initializer_list<forms::TextEntry*>{&account().txtAccount, &account().cmbType, &account().txtName}) {
        click(*box);
        paste(much);
    }
    clickTold(account().cmdState, "   Your New Account Has Been Added!", Information);
    EXPECT_EQ(inFile(Data1.rsBank, {Bank::FinancialInstitution, Bank::AccountNumber, Bank::AccountType}),
        QStringList({much.left(40), much.left(254), much.left(255)}));
}

} // namespace
