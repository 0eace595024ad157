// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounts/frmBank.h"
#include "accounts/frmEditBankBoxes.h"
#include "frame/frmMain.h"
#include "household/frmGenInfo.h"
#include "support/harness.h"

using forms::screen;

namespace {

// Today is 24 November 2026.
class Accounts : public ScreenTest {
protected:
    static frmEditBankBoxes& menu() { return screen<frmEditBankBoxes>(); }
    static frmBank& account() { return screen<frmBank>(); }

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
    for (const char* row : {"None|x|1|2|3|7|R|1 lakh|soon|Safe|None|me",
             "First Bank|1 Main St|315|555|0100|a-1|R1|$12,34.50|5/6/2026|Savings|Utica|NY",
             "B|x|1|2|3|8|R|$1.00|soon|Safe|c|ME", "Second Bank|None|None|None|None|A-1|None|None|None|None|None|None"})
        addRow(Data1.rsBank, Bank::FinancialInstitution, QString(row).split('|'));
    screen<frmMain>().show();
    replay("accounts/several.txt");
}

TEST_F(Accounts, NeedAnOptionAndHopWhenTheKeyIsLetGo)
{
    screen<frmGenInfo>().show();
    click(screen<frmGenInfo>().cmdBank);
    menu().AccountMode = 3;
    clickTold(menu().cmdUpdate, "You Must Select An Option Before Continuing!", Exclamation);
    click(menu().cmdCancel);
    open(0);
    click(account().txtPhone1);
    press({Qt::Key_3, Qt::Key_1});
    hold(Qt::Key_5);
    EXPECT_EQ(scene(), "7 frmBank: txtPhone1");
    letGo(Qt::Key_5);
    EXPECT_EQ(scene(), "7 frmBank: txtPhone2");
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
