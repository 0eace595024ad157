// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/frmMain.h"
#include "reports/data_report.h"
#include "reports/frmPrint.h"
#include "search/frmSearch.h"
#include "support/harness.h"

#include <QTest>

using forms::screen;

namespace {

class PrintMenu : public ScreenTest {
protected:
    PrintMenu()
    {
        screen<frmMain>().show();
        click(screen<frmMain>().cmdPrint);
        EXPECT_EQ(front(), "3 frmPrint");
    }

    static frmPrint& menu() { return screen<frmPrint>(); }

    // The rows that are staged, the report that is open, where the focus is, and what a run leaves:
    // "Desk Lamp in AssetReport, cmdInPrint(0), custom, progress"
    static QString state()
    {
        EXPECT_EQ(screen<frmSearch>().lblHead[3].isVisible(), !screen<frmSearch>().pbSearch.isVisible());
        return columnOf(Data1.rsPrint, Print::Type).join(' ') + " in "
            + (reportWindow() ? reportWindow()->objectName() : "nothing") + ", " + menu().activeControl()->name()
            + (menu().CustomPrint ? ", custom" : "") + (screen<frmSearch>().pbSearch.isVisible() ? ", progress" : "");
    }
};

TEST_F(PrintMenu, StagesTheAssetsOfAnAreaOrAllInTheOrderOfTheInventoryAndOpensTheReport)
{
    clickTold(menu().cmdAllPrint[3], "             No Assets Found To Print!", Exclamation);
    EXPECT_EQ(state(), " in nothing, cmdAllPrint(3), progress"); // until the next run
    addAssetRow({"Indoor", "", "", "Desk", "1", "2", "3", "4", "5", "$6.00", "7", "8", "text"});
    for (const auto& [area, item] : {std::pair("OUTDOOR", "Rake"), {"Indoor", "Lamp"}, {"Outdoors", "Swing"}})
        addAssetRow({area, "", "", item});
    menu().cmdCustom[4].setFocus();
    accessKey('i');
    EXPECT_EQ(state(), "Desk Lamp in AssetReport, cmdInPrint(0), custom");
    EXPECT_EQ(columnOf(Data1.rsPrint, Print::ID) + columnOf(Data1.rsPrint, Print::Description),
        QStringList({"1", "3", "text", "None"}));
    EXPECT_EQ(reportWindow()->windowTitle(), "Kestrill by Brindlewick Software");

    // One report window blocks all, and nothing is staged under it.
    for (forms::CommandButton* button : {&menu().cmdInPrint[0], &menu().cmdOutPrint[2], &menu().cmdAutoPrint[1],
             &menu().cmdAllPrint[3], &menu().cmdCustom[4], &menu().cmdCover[0], &menu().cmdFillOutForm[0]})
        clickTold(*button, "Please Close Print Window Before Selecting Another Report To Print!", Exclamation);
    EXPECT_EQ(state(), "Desk Lamp in AssetReport, cmdInPrint(0), custom");
    closeReport();

    click(menu().cmdOutPrint[2]);
    EXPECT_EQ(state(), "Rake in AssetReport, cmdOutPrint(2), custom");
    EXPECT_EQ(screen<frmSearch>().pbSearch.max(), 4) << "all assets";
    closeReport();
    clickTold(menu().cmdAutoPrint[1], "           No Assets Found To Print!", Exclamation);
    EXPECT_EQ(state(), " in nothing, cmdAutoPrint(1)");
    Data1.rsInventory.Sort("Type");
    accessKey('a');
    EXPECT_EQ(state(), "Desk Lamp Rake Swing in AssetReport, cmdAllPrint(3), custom");
    click(menu().cmdBack[0]);
    EXPECT_EQ(line(state(), front()),
        "Desk Lamp Rake Swing in AssetReport, cmdAllPrint(3), 2 frmMain"); // a window of its own
}

TEST_F(PrintMenu, OpensTheCoverSheetAndTheFormAndSearchesForACustomPrintout)
{
    accessKey('s');
    EXPECT_EQ(state(), " in CoverSheet, cmdCover(0)");
    closeReport();
    press(Qt::Key_F1);
    EXPECT_EQ(openedHelp(), 2001);
    EXPECT_TRUE(menu().cmdFillOutForm[0].isDefault());
    accessKey('f');
    EXPECT_EQ(state(), " in FillOutForm, cmdFillOutForm(0)");
    expectToStay([] { closeBox(menu()); });
    EXPECT_EQ(state(), " in FillOutForm, cmdFillOutForm(0)");
    closeReport();

    screen<frmMain>().FromMenu = true;
    click(menu().cmdCustom[4]);
    EXPECT_EQ(line(scene(), screen<frmSearch>().lblHead[0].caption(), menu().CustomPrint, screen<frmMain>().FromMenu),
        "4 frmSearch: txtKey, Search For Assets To Print, true, false");
}

// A run that fails is told by each button but All, where it is uncaught, and opens no report; a report tells its own.
TEST_F(PrintMenu, TellsWhatFails)
{
    qputenv("CUPS_SERVER", "/nowhere");
    accessKey('f');
    expectBox("A Printing Error Has Occurred..."
              "You May Not Have A Printer Installed Or Is Installed Incorrectly.",
        Stop);
    QTest::keyClick(reportWindow()->windowHandle(), Qt::Key_P, Qt::ControlModifier);
    closeReport();
    const char* const error = "Error Printing Report...Please Ensure Printer Is Turned On And Working Properly!";
    for (const char* area : {"Indoor", "Outdoor", "Mobile"})
        addAssetRow({area});
    refuseWrites("INSERT", "Print");
    for (forms::CommandButton* button : {&menu().cmdInPrint[0], &menu().cmdOutPrint[2], &menu().cmdAutoPrint[1]})
        clickTold(*button, error, Stop);
    EXPECT_EQ(state(), " in nothing, cmdAutoPrint(1), custom");
    click(menu().cmdAllPrint[3]);
    EXPECT_EQ(line(failedHandler(), Data1.rsPrint.RecordCount()), "frmPrint.cmdAllPrint(3)_Click, 0");
    makeRoom("Print");

    Data1.rsGeneral.Delete(); // the household whose reports they are
    for (forms::CommandButton* button : {&menu().cmdInPrint[0], &menu().cmdCover[0], &menu().cmdFillOutForm[0]})
        clickTold(*button, error, Stop);
    EXPECT_FALSE(reportWindow());
}

} // namespace
