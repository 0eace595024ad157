// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounts/frmBank.h"
#include "accounts/frmEditBankBoxes.h"
#include "frame/frmMain.h"
#include "household/frmGenInfo.h"
#include "support/harness.h"

using forms::screen;

namespace {

// Today is 24 November 2026.
using Accounts = ScreenTest;

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

TEST_F(Accounts, ArentOpenedInNoneOfTheThreeWays)
{
    screen<frmGenInfo>().show();
    click(screen<frmGenInfo>().cmdBank);
    for (const int mode : {-1, 3}) {
        screen<frmEditBankBoxes>().AccountMode = mode;
        clickTold(screen<frmEditBankBoxes>().cmdUpdate, "You Must Select An Option Before Continuing!", Exclamation);
        EXPECT_EQ(front(), "15 frmEditBankBoxes");
    }
}

TEST_F(Accounts, AreLeftWithoutAQuestionWhereNoneIsTheCurrentOne)
{
    addRow(Data1.rsBank, Bank::FinancialInstitution, QString("None ").repeated(12).trimmed().split(' '));
    screen<frmGenInfo>().show();
    for (const auto move : {&storage::TableView::MovePrevious, &storage::TableView::MoveNext}) {
        click(screen<frmGenInfo>().cmdBank);
        click(screen<frmEditBankBoxes>().optEdit[AccountMenu::Update]);
        click(screen<frmEditBankBoxes>().cmdUpdate);
        screen<frmBank>().txtAddress.setText("1 Main St");
        (Data1.rsBank.*move)();
        click(screen<frmBank>().cmdBack);
        EXPECT_EQ(front(), "1 frmGenInfo");
    }
}

// The boxes tell their limits themselves, but for this one.
TEST_F(Accounts, HaveATypeThatIsCutToTheLengthOfItsColumn)
{
    screen<frmGenInfo>().show();
    click(screen<frmGenInfo>().cmdBank);
    click(screen<frmEditBankBoxes>().cmdUpdate);
    click(screen<frmBank>().cmbType);
    paste(QString(300, 'x'));
    EXPECT_EQ(screen<frmBank>().cmbType.text().size(), 255);
}

} // namespace
