// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/frmBW_Splash.h"
#include "core/frmStartup.h"
#include "core/places.h"
#include "reports/report_titles.h"
#include "support/files.h"
#include "support/harness.h"

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

    // As the program starts: the splash screen stands until its timer fires. No start changes the file.
    static void expectStart(const QString& leadsTo)
    {
        const QByteArray before = bytesOf(places::databaseFile());
        screen<frmBW_Splash>().show();
        screen<frmBW_Splash>().tmrLoad.elapse();
        EXPECT_EQ(scene(), leadsTo);
        forms::destroyScreens();
        closeData();
        EXPECT_EQ(bytesOf(places::databaseFile()), before) << "the file has been made or changed";
    }

    void expectRefusal(const QString& text, int flags)
    {
        expectBox(text, flags);
        expectStart("20 nothing");
        EXPECT_EQ(endStatus(), flags == Stop ? 3 : 1) << "the launcher offers a restore after a 3";
    }

    void expectLoadFailure() { expectRefusal("Unable To Load Database...Closing Program!", Stop); }
};

TEST_F(StartUp, OpensEachViewOnItsFirstRowAndShowsTheMainMenu)
{
    screen<frmBW_Splash>().show();
    closeBox(screen<frmBW_Splash>()); // refuses
    EXPECT_EQ(scene(), "20 frmBW_Splash");
    screen<frmBW_Splash>().tmrLoad.elapse();
    EXPECT_EQ(scene(), "2 frmMain: cmdIn");
    EXPECT_EQ(reportTitles().AssetReport, "Asset Report - Kestrill by Brindlewick Software");
    for (const storage::TableView* view : {&Data1.rsGeneral, &Data1.rsIndoor, &Data1.rsOutdoor, &Data1.rsMobile})
        EXPECT_FALSE(view->atBOF() || view->atEOF());
}

TEST_F(StartUp, OfAFirstRunLeadsToTheIntroductionWithoutAnAlert)
{
    for (const char* introduced : {"None", "", "0", "01", " 1"}) {
        SCOPED_TRACE(introduced);
        store({{General::Introduced, introduced}, {General::PolicyNotify, "Yes"},
            {General::PolicyExpiration, "1/1/2020"}});
        expectStart("17 frmIntroduction: cmdOK");
    }
}

TEST_F(StartUp, SaysWhenThePolicyExpiresAndBlamesTheDatabaseForADateThatIsNoneOrTooFarAway)
{
    const QString expired = "Your Insurance Policy Has Expired...Please Renew Your Insurance Policy So You Can "
                            "Ensure Coverage In The Event Of Theft Or Disaster!";
    const QString failure = "failure";
    const std::tuple<const char*, const char*, QString> alerts[] = {{"Yes", "11/25/1950", expired},
        {"Yes", "11/23/2026", expired}, {"yES", "11/24/2026", "    Your Insurance Policy Expires Today! "},
        {"Yes ", "11/24/2026", {}}, {"No", "None", {}},
        {"Yes", "11/25/2026", "   Your Insurance Policy Expires In 1 Day!"},
        {"Yes", "11/26/2026", "Your Insurance Policy Expires In 2 Days!"},
        {"Yes", "12/24/2026", "Your Insurance Policy Expires In 30 Days!"}, {"Yes", "12/25/2026", {}},
        {"Yes", "None", failure}, {"Yes", "1/1/2200", failure}};
    for (const auto& [notify, expiration, text] : alerts) {
        SCOPED_TRACE(testing::Message() << notify << ", " << expiration);
        store({{General::PolicyNotify, notify}, {General::PolicyExpiration, expiration}});
        if (text == failure) {
            expectLoadFailure();
            continue;
        }
        if (!text.isEmpty())
            expectBox(text, Information);
        expectStart("2 frmMain: cmdIn");
    }
}

TEST_F(StartUp, RefusesAFileThatIsNoneAMissingOneAndBeforeBothAnotherInstanceWhoseNameHoldsThePhrase)
{
    running({"Kestrill", "kestrill", "KESTRILL", "kestrel"}); // the case counts
    expectStart("2 frmMain: cmdIn");
    putFile(places::databaseFile(), QByteArray(8192, 'x'));
    expectLoadFailure();
    QFile::remove(places::databaseFile());
    expectLoadFailure();
    running({"Kestrill", "MyKestrillViewer.exe"});
    expectRefusal("Kestrill Is Already Running!", Exclamation);
}

} // namespace
