// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/frmMain.h"
#include "core/frmStartup.h"
#include "reports/data_report.h"
#include "reports/frmPrint.h"
#include "reports/report_titles.h"
#include "reports/reports.h"
#include "search/frmSearch.h"
#include "support/harness.h"

#include <QApplication>
#include <QTest>

using forms::screen;

namespace {

constexpr const char* GuardText = "Please Close Print Window Before Selecting Another Report To Print!";
constexpr const char* ErrorText = "Error Printing Report...Please Ensure Printer Is Turned On And Working Properly!";
constexpr int Stop = 16;
constexpr int Exclamation = 48;

class PrintMenu : public ScreenTest {
protected:
    void SetUp() override
    {
        ScreenTest::SetUp();
        screen<frmMain>().show();
        click(screen<frmMain>().cmdPrint);
        ASSERT_TRUE(menu().isVisible());
        ASSERT_FALSE(screen<frmMain>().isVisible());
    }

    void TearDown() override
    {
        closeReport();
        ScreenTest::TearDown();
    }

    static frmPrint& menu() { return screen<frmPrint>(); }

    static QWidget* reportWindow(const char* name)
    {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->objectName() == name && window->isVisible())
                return window;
        return nullptr;
    }

    static void closeReport()
    {
        for (const char* name : {"AssetReport", "CoverSheet", "FillOutForm"})
            if (QWidget* window = reportWindow(name)) {
                window->activateWindow();
                settle();
                QTest::keyClick(window->windowHandle(), Qt::Key_Escape);
            }
        settle();
        forms::activeForm()->window()->activateWindow(); // as a window manager does
        settle();
        EXPECT_FALSE(reports::AssetReport().isVisible());
    }

    static void addAsset(const QString& area, const QString& type)
    {
        Data1.rsInventory.AddNew();
        for (int column = Inventory::Area; column <= Inventory::WarrantyDescription; ++column)
            Data1.rsInventory.Fields(column) = column == Inventory::Amount ? "$5.00" : QString("text %1").arg(column);
        Data1.rsInventory.Fields(Inventory::Area) = area;
        Data1.rsInventory.Fields(Inventory::Type) = type;
        Data1.rsInventory.Update();
    }

    static QStringList staged(int column = Print::Type)
    {
        QStringList texts;
        const storage::Snapshot rows = Data1.rsPrint.snapshot();
        for (int row = 0; row < rows.rowCount(); ++row)
            texts.append(rows.text(row, column));
        return texts;
    }
};

TEST_F(PrintMenu, StagesTheAssetsOfAnAreaAndOpensTheReport)
{
    addAsset("Indoor", "Desk");
    addAsset("OUTDOOR", "Rake");
    addAsset("Indoor", "Lamp");
    addAsset("Outdoors", "Swing");
    EXPECT_EQ(frmStartup::CurrentScreen, 3);
    menu().cmdCustom[4].setFocus();
    accessKey('i');
    EXPECT_EQ(staged(), QStringList({"Desk", "Lamp"}));
    EXPECT_EQ(staged(Print::ID), QStringList({"1", "3"}));
    EXPECT_EQ(staged(Print::Description).at(0), "text 13");
    EXPECT_TRUE(reports::AssetReport().isVisible());
    EXPECT_TRUE(menu().CustomPrint);
    EXPECT_EQ(reportWindow("AssetReport")->windowTitle(), "Kestrill by Brindlewick Software");

    // One report window blocks all, and nothing is staged under it.
    for (forms::CommandButton* button : {&menu().cmdInPrint[0], &menu().cmdOutPrint[2], &menu().cmdAutoPrint[1],
             &menu().cmdAllPrint[3], &menu().cmdCustom[4], &menu().cmdCover[0], &menu().cmdFillOutForm[0]}) {
        expectBox(GuardText, Exclamation);
        click(*button);
    }
    EXPECT_EQ(staged(), QStringList({"Desk", "Lamp"}));
    EXPECT_TRUE(menu().isVisible());
    closeReport();

    click(menu().cmdOutPrint[2]);
    EXPECT_EQ(staged(), QStringList("Rake"));
    EXPECT_EQ(menu().activeControl(), &menu().cmdOutPrint[2]);
    EXPECT_FALSE(screen<frmSearch>().pbSearch.isVisible());
    EXPECT_TRUE(screen<frmSearch>().lblHead[3].isVisible());
    closeReport();

    expectBox("           No Assets Found To Print!", Exclamation);
    click(menu().cmdAutoPrint[1]);
    EXPECT_EQ(staged(), QStringList());
    EXPECT_FALSE(menu().CustomPrint);
    EXPECT_EQ(menu().activeControl(), &menu().cmdAutoPrint[1]);
    EXPECT_FALSE(reports::AssetReport().isVisible());
}

TEST_F(PrintMenu, StagesAllInTheOrderOfTheInventory)
{
    expectBox("             No Assets Found To Print!", Exclamation);
    click(menu().cmdAllPrint[3]);
    EXPECT_TRUE(screen<frmSearch>().pbSearch.isVisible()); // until the next run
    EXPECT_FALSE(menu().CustomPrint);
    addAsset("Mobile", "Kayak");
    addAsset("Indoor", "Desk");
    Data1.rsInventory.Sort("Type");
    accessKey('a');
    EXPECT_EQ(staged(), QStringList({"Desk", "Kayak"}));
    EXPECT_EQ(menu().activeControl(), &menu().cmdAllPrint[3]);
    EXPECT_FALSE(screen<frmSearch>().pbSearch.isVisible());
    EXPECT_TRUE(reports::AssetReport().isVisible());

    click(menu().cmdBack[0]);
    EXPECT_FALSE(menu().CustomPrint);
    EXPECT_TRUE(screen<frmMain>().isVisible());
    EXPECT_FALSE(menu().isVisible());
    EXPECT_TRUE(reports::AssetReport().isVisible()); // a window of its own
}

TEST_F(PrintMenu, OpensTheCoverSheetAndTheForm)
{
    reportTitles().CoverSheet = "Cover Sheet - Kestrill by Brindlewick Software";
    accessKey('s');
    ASSERT_TRUE(reports::CoverSheet().isVisible());
    EXPECT_EQ(reportWindow("CoverSheet")->windowTitle(), "Cover Sheet - Kestrill by Brindlewick Software");
    closeReport();
    accessKey('f');
    ASSERT_TRUE(reports::FillOutForm().isVisible());
    EXPECT_EQ(menu().activeControl(), &menu().cmdFillOutForm[0]);
    EXPECT_TRUE(menu().cmdFillOutForm[0].isDefault());
    press(Qt::Key_F1);
    EXPECT_EQ(openedHelp(), 2001);
    reportTitles() = {};
}

TEST_F(PrintMenu, SearchesForACustomPrintout)
{
    screen<frmMain>().FromMenu = true;
    click(menu().cmdCustom[4]);
    EXPECT_FALSE(screen<frmMain>().FromMenu);
    EXPECT_TRUE(menu().CustomPrint);
    EXPECT_FALSE(menu().isVisible());
    EXPECT_TRUE(screen<frmSearch>().isVisible());
    EXPECT_EQ(screen<frmSearch>().lblHead[0].caption(), "Search For Assets To Print");
}

// A failed opening is told by each button but All, where it is uncaught.
TEST_F(PrintMenu, TellsWhatFails)
{
    addAsset("Indoor", "Desk");
    Data1.rsGeneral.Delete(); // the household whose reports they are
    for (forms::CommandButton* button : {&menu().cmdInPrint[0], &menu().cmdCover[0], &menu().cmdFillOutForm[0]}) {
        expectBox(ErrorText, Stop);
        click(*button);
        EXPECT_FALSE(reportedFailure());
    }
    EXPECT_FALSE(screen<frmSearch>().pbSearch.isVisible());
    click(menu().cmdAllPrint[3]);
    EXPECT_TRUE(reportedFailure());
    EXPECT_FALSE(reports::AssetReport().isVisible());
}

TEST_F(PrintMenu, AsksBeforeItCloses)
{
    accessKey('f');
    for (int times = 0; times < 2; ++times) {
        expectBox("Are You Sure You Want To Close Kestrill?", 36, forms::Answer::No);
        closeBox(menu());
        EXPECT_TRUE(menu().isVisible());
    }
    EXPECT_TRUE(reports::FillOutForm().isVisible());
}

} // namespace
