// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/frmMain.h"
#include "reports/frmPrint.h"
#include "support/harness.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>

using forms::screen;

namespace {

class PrintMenu : public ScreenTest {
protected:
    PrintMenu()
    {
        screen<frmMain>().show();
        click(screen<frmMain>().cmdPrint);
    }

    static frmPrint& menu() { return screen<frmPrint>(); }
};

TEST_F(PrintMenu, GoesAsItIsKept)
{
    addAssetRow({"Indoor", "Attic", "Tables", "Desk", "1", "2", "3", "4", "5", "$6.00", "7", "8", "text"});
    for (const auto& [area, item] : {std::pair("OUTDOOR", "Rake"), {"Indoor", "Lamp"}, {"Outdoors", "Swing"}})
        addAssetRow({area, "", "", item});
    Data1.rsInventory.Sort("Type");
    replay("reports/print_menu.txt");
}

TEST_F(PrintMenu, TellsThatNoReportCanBeMadeAndTheReportWhatFailsInIt)
{
    qputenv("CUPS_SERVER", "/nowhere");
    accessKey('f');
    EXPECT_EQ(reportWindow()->windowTitle(), "Asset Information Form");
    expectBox("A Printing Error Has Occurred..."
              "You May Not Have A Printer Installed Or Is Installed Incorrectly.",
        Stop);
    QTest::keyClick(reportWindow()->windowHandle(), Qt::Key_P, Qt::ControlModifier);
    whileModal([] {
        EXPECT_EQ(QApplication::activeModalWidget()->findChild<QLineEdit*>("fileNameEdit")->text(),
            "Asset Information Form 2026-11-24.pdf");
        press(Qt::Key_Escape);
    });
    QTest::keyClick(reportWindow()->windowHandle(), Qt::Key_S, Qt::ControlModifier);
    closeReport();
    addAssetRow({"Indoor"});
    click(menu().cmdAllPrint[3]);
    EXPECT_EQ(reportWindow()->windowTitle(), "Kestrill by Brindlewick Software");
    closeReport();
    const char* const error = "Error Printing Report...Please Ensure Printer Is Turned On And Working Properly!";
    Data1.rsGeneral.Delete(); // the household whose reports they are
    for (forms::CommandButton* button : {&menu().cmdInPrint[0], &menu().cmdCover[0], &menu().cmdFillOutForm[0]})
        clickTold(*button, error, Stop);
    EXPECT_FALSE(reportWindow());
}

} // namespace
