// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/places.h"
#include "frame/frmBW_Splash.h"
#include "frame/frmStartup.h"
#include "reports/report_titles.h"
#include "shared/program_name.h"
#include "support/files.h"
#include "support/harness.h"

#include <QApplication>
#include <QIcon>

using forms::screen;

namespace {

// The program before its start: no view is open, no screen made. Today is 24 November 2026.
class StartUp : public ScreenTest {
protected:
    StartUp()
    {
        store({{General::Introduced, "1"}});
        running({"Kestrill", "bash"});
    }

    // Puts values into the household's row and closes the database again.
    static void store(const Cells& values)
    {
        inFile(Data1.rsGeneral, {});
        put(Data1.rsGeneral, values);
        closeData();
    }

    static void running(const QStringList& names)
    {
        std::vector<sys::Process> processes;
        for (const QString& name : names)
            processes.emplace_back().name = name;
        frmStartup::list_Processes = [processes] { return processes; };
    }

    // As the program starts: the splash screen stands until its timer fires. What is said, where it leads and how it
    // ends. No start changes the file.
    QString start()
    {
        QStringList told;
        forms::setMessageHandler([&told](const forms::Message& box) {
            told += QString("%1 \"%2\"").arg(box.flags).arg(box.text);
            return forms::Answer::OK;
        });
        const QByteArray before = bytesOf(places::databaseFile());
        screen<frmBW_Splash>().show();
        screen<frmBW_Splash>().tmrLoad.elapse();
        told += scene();
        if (const auto status = endStatus())
            told += QString("ends with %1").arg(*status);
        forms::destroyScreens();
        closeData();
        EXPECT_EQ(bytesOf(places::databaseFile()), before) << "the file has been made or changed";
        return told.join("; ");
    }
};

TEST_F(StartUp, OpensEachViewOnItsFirstRowAndShowsTheMainMenu)
{
    nameProgram();
    EXPECT_EQ(QApplication::windowIcon().availableSizes().size(), 5);
    screen<frmBW_Splash>().show();
    closeBox(screen<frmBW_Splash>()); // refuses
    EXPECT_EQ(scene(), "20 frmBW_Splash");
    screen<frmBW_Splash>().tmrLoad.elapse();
    EXPECT_EQ(line(scene(), screen<frmBW_Splash>().tmrLoad.isEnabled()), "2 frmMain: cmdIn, false");
    const auto& [report, cover, form] = reportTitles();
    EXPECT_EQ(line(report, cover, form).replace(" - Kestrill by Brindlewick Software", "!"),
        "Asset Report!, Cover Sheet!, Asset Information Form!");
    for (const storage::TableView* view : {&Data1.rsGeneral, &Data1.rsIndoor, &Data1.rsOutdoor, &Data1.rsMobile})
        EXPECT_FALSE(view->atBOF() || view->atEOF());
}

TEST_F(StartUp, LeadsToTheIntroductionOrSaysWhenThePolicyExpires)
{
    expectSteps("core/starts.txt", [this](const QString& row) {
        const QStringList values = row.split('|');
        store({{General::Introduced, values[0]}, {General::PolicyNotify, values[1]},
            {General::PolicyExpiration, values[2]}});
        return start();
    });
}

// By a 3 the launcher knows when to offer a restore.
TEST_F(StartUp, RefusesAFileThatIsNoneAMissingOneAndBeforeBothAnotherInstanceWhoseNameHoldsThePhrase)
{
    running({"Kestrill", "kestrill", "KESTRILL", "kestrel"}); // the case counts
    EXPECT_EQ(start(), "2 frmMain: cmdIn");
    const char* const unable = "16 \"Unable To Load Database...Closing Program!\"; 20 nothing; ends with 3";
    putFile(places::databaseFile(), QByteArray(8192, 'x'));
    EXPECT_EQ(start(), unable);
    QFile::remove(places::databaseFile());
    EXPECT_EQ(start(), unable);
    running({"Kestrill", "MyKestrillViewer.exe"});
    EXPECT_EQ(start(), "48 \"Kestrill Is Already Running!\"; 20 nothing; ends with 1");
}

} // namespace
