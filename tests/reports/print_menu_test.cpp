// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/frmMain.h"
#include "reports/frmPrint.h"
#include "search/frmSearch.h"
#include "support/files.h"
#include "support/harness.h"
#include "support/pdf_text.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include <algorithm>

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

    /// What stands in the window of the report, whether its file has the same, how far the search screen shows that a
    /// run has come, and what happens to the household.
    std::optional<QString> happen(const QString& line) override
    {
        if (line == "read")
            return QString(title() + '\n' + page().accessibleName() + '\n' + words());
        if (line == "save")
            return saved();
        if (line == "progress") {
            const auto& bar = screen<frmSearch>().pbSearch;
            return QString("%1 of %2, %3").arg(bar.value()).arg(bar.max()).arg(bar.isVisible() ? "up" : "away");
        }
        if (line == "sell all")
            removeRows(Data1.rsInventory);
        else if (line == "leave no name")
            put(Data1.rsGeneral, {{General::First, "None"}, {General::Last, "None"}});
        else
            return {};
        return QString();
    }

private:
    static QString title() { return reportWindow()->windowTitle(); }
    static QWidget& page() { return *reportWindow()->findChild<QWidget*>("pageView"); }

    static QString words()
    {
        return page().accessibleDescription().replace(QRegularExpression("\\d+:\\d\\d:\\d\\d [AP]M"), "(time)");
    }

    // Words that stand close to each other may be told as one.
    static QString lettersOf(QString words)
    {
        std::ranges::sort(words.remove(QRegularExpression("\\s|\\d+:\\d\\d:\\d\\d[AP]M")));
        return words;
    }

    QString saved()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath("report.pdf");
        QString told;
        whileModal([&] {
            auto& name = *QApplication::activeModalWidget()->findChild<QLineEdit*>("fileNameEdit");
            told = name.text();
            name.setText(file);
            press(Qt::Key_Return);
        });
        reportWindow()->activateWindow();
        settle();
        QTest::keyClick(reportWindow()->windowHandle(), Qt::Key_S, Qt::ControlModifier);
        EXPECT_EQ(lettersOf(pdf::read(file).at(0).text()), lettersOf(page().accessibleDescription()));
        const QStringList about = pdf::output("pdfinfo", {file}).split('\n');
        for (const QString& each : about.filter(QRegularExpression("^(Title|Author|Pages):")))
            told += '\n' + each.simplified();
        return told;
    }
};

TEST_F(PrintMenu, GoesAsItIsKept)
{
    addAssetRow({"Indoor", "Attic", "Tables", "Desk", "1", "2", "3", "4", "5", "$6.00", "7", "8", "text"});
    for (const auto& [area, item] : {std::pair("OUTDOOR", "Rake"), {"Indoor", "Lamp"}, {"Outdoors", "Swing"}})
        addAssetRow({area, "", "", item});
    Data1.rsInventory.Sort("Type");
    put(Data1.rsGeneral, {{General::First, "Ann"}, {General::Last, "Fairbanks"}, {General::AssetValue, "56.5"}});
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
