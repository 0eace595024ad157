// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/frmMain.h"
#include "reports/data_report.h"
#include "reports/frmPrint.h"
#include "reports/report_titles.h"
#include "reports/reports.h"
#include "search/frmSearch.h"
#include "support/harness.h"

using forms::screen;

namespace {

class PrintMenu : public ScreenTest {
protected:
    PrintMenu()
    {
        screen<frmMain>().show();
        click(screen<frmMain>().cmdPrint);
        EXPECT_EQ(scene().section(':', 0, 0), "3 frmPrint");
    }

    static frmPrint& menu() { return screen<frmPrint>(); }
    static QString title() { return reportWindow() ? reportWindow()->windowTitle() : QString(); }

    // The rows that are staged, and the window in which they are shown.
    static void expectStaged(const QString& types, bool custom)
    {
        EXPECT_EQ(columnOf(Data1.rsPrint, Print::Type).join(' '), types);
        EXPECT_EQ(reports::AssetReport().isVisible(), !types.isEmpty());
        EXPECT_EQ(menu().CustomPrint, custom);
    }

    static void expectFocus(const forms::Control& button, bool progress)
    {
        EXPECT_EQ(menu().activeControl(), &button);
        EXPECT_EQ(screen<frmSearch>().pbSearch.isVisible(), progress);
        EXPECT_EQ(screen<frmSearch>().lblHead[3].isVisible(), !progress);
    }
};

TEST_F(PrintMenu, StagesTheAssetsOfAnAreaAndOpensTheReport)
{
    addAssetRow({"Indoor", "", "", "Desk", "1", "2", "3", "4", "5", "$6.00", "7", "8", "text"});
    addAssetRow({"OUTDOOR", "", "", "Rake"});
    addAssetRow({"Indoor", "", "", "Lamp"});
    addAssetRow({"Outdoors", "", "", "Swing"});
    menu().cmdCustom[4].setFocus();
    accessKey('i');
    expectStaged("Desk Lamp", true);
    EXPECT_EQ(columnOf(Data1.rsPrint, Print::ID).join(' '), "1 3");
    EXPECT_EQ(columnOf(Data1.rsPrint, Print::Description).join(' '), "text None");
    EXPECT_EQ(title(), "Kestrill by Brindlewick Software");

    // One report window blocks all, and nothing is staged under it.
    for (forms::CommandButton* button : {&menu().cmdInPrint[0], &menu().cmdOutPrint[2], &menu().cmdAutoPrint[1],
             &menu().cmdAllPrint[3], &menu().cmdCustom[4], &menu().cmdCover[0], &menu().cmdFillOutForm[0]})
        clickTold(*button, "Please Close Print Window Before Selecting Another Report To Print!", Exclamation);
    expectStaged("Desk Lamp", true);
    EXPECT_TRUE(menu().isVisible());
    closeReport();

    click(menu().cmdOutPrint[2]);
    expectStaged("Rake", true);
    expectFocus(menu().cmdOutPrint[2], false);
    closeReport();

    clickTold(menu().cmdAutoPrint[1], "           No Assets Found To Print!", Exclamation);
    expectStaged("", false);
    expectFocus(menu().cmdAutoPrint[1], false);
}

TEST_F(PrintMenu, StagesAllInTheOrderOfTheInventory)
{
    clickTold(menu().cmdAllPrint[3], "             No Assets Found To Print!", Exclamation);
    expectStaged("", false);
    expectFocus(menu().cmdAllPrint[3], true); // until the next run
    addAssetRow({"Mobile", "", "", "Kayak"});
    addAssetRow({"Indoor", "", "", "Desk"});
    Data1.rsInventory.Sort("Type");
    accessKey('a');
    expectStaged("Desk Kayak", true);
    expectFocus(menu().cmdAllPrint[3], false);

    click(menu().cmdBack[0]);
    expectStaged("Desk Kayak", false); // a window of its own
    EXPECT_EQ(scene().section(':', 0, 0), "2 frmMain");
}

TEST_F(PrintMenu, OpensTheCoverSheetAndTheForm)
{
    reportTitles().CoverSheet = "Cover Sheet - Kestrill by Brindlewick Software";
    accessKey('s');
    EXPECT_TRUE(reports::CoverSheet().isVisible());
    EXPECT_EQ(title(), "Cover Sheet - Kestrill by Brindlewick Software");
    closeReport();
    press(Qt::Key_F1);
    EXPECT_EQ(openedHelp(), 2001);
    accessKey('f');
    EXPECT_TRUE(reports::FillOutForm().isVisible());
    EXPECT_EQ(menu().activeControl(), &menu().cmdFillOutForm[0]);
    EXPECT_TRUE(menu().cmdFillOutForm[0].isDefault());
    for (int times = 0; times < 2; ++times)
        expectToStay([] { closeBox(menu()); });
    EXPECT_TRUE(reports::FillOutForm().isVisible());
    reportTitles() = {};
}

TEST_F(PrintMenu, SearchesForACustomPrintout)
{
    screen<frmMain>().FromMenu = true;
    click(menu().cmdCustom[4]);
    EXPECT_FALSE(screen<frmMain>().FromMenu);
    EXPECT_TRUE(menu().CustomPrint);
    EXPECT_EQ(scene(), "4 frmSearch: txtKey");
    EXPECT_EQ(screen<frmSearch>().lblHead[0].caption(), "Search For Assets To Print");
}

// A run that fails is told by each button but All, where it is uncaught, and opens no report.
TEST_F(PrintMenu, TellsWhatFails)
{
    const char* const error = "Error Printing Report...Please Ensure Printer Is Turned On And Working Properly!";
    for (const char* area : {"Indoor", "Outdoor", "Mobile"})
        addAssetRow({area});
    refuseWrites("INSERT", "Print");
    for (forms::CommandButton* button : {&menu().cmdInPrint[0], &menu().cmdOutPrint[2], &menu().cmdAutoPrint[1]})
        clickTold(*button, error, Stop);
    EXPECT_FALSE(screen<frmSearch>().pbSearch.isVisible());
    click(menu().cmdAllPrint[3]);
    EXPECT_EQ(failedHandler(), "frmPrint.cmdAllPrint(3)_Click");
    EXPECT_EQ(Data1.rsPrint.RecordCount(), 0);
    makeRoom("Print");

    Data1.rsGeneral.Delete(); // the household whose reports they are
    for (forms::CommandButton* button : {&menu().cmdInPrint[0], &menu().cmdCover[0], &menu().cmdFillOutForm[0]})
        clickTold(*button, error, Stop);
    click(menu().cmdAllPrint[3]);
    EXPECT_TRUE(reportedFailure());
    EXPECT_FALSE(reportWindow());
    EXPECT_EQ(Data1.rsInventory.RecordCount(), 3);
}

} // namespace
