// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/data_store.h"
#include "core/frmBW_Splash.h"
#include "core/frmMain.h"
#include "core/frmStartup.h"
#include "core/places.h"
#include "household/frmIntroduction.h"
#include "reports/report_titles.h"
#include "support/harness.h"

#include <QFile>

using forms::screen;

namespace {

constexpr int Stop = 16;
constexpr int Exclamation = 48;
constexpr int Information = 64;

const char* const LoadFailure = "Unable To Load Database...Closing Program!";

// The program before its start: no view is open, no screen made.
class StartUp : public ScreenTest {
protected:
    void SetUp() override
    {
        ScreenTest::SetUp();
        store({{General::Introduced, "1"}});
        running({"Kestrill", "bash"});
    }

    // Puts values into the household's row and closes the database again.
    static void store(std::initializer_list<std::pair<General::Column, const char*>> values)
    {
        if (!Data1.rsGeneral.isOpen())
            Data1.rsGeneral.Open();
        for (const auto& [column, value] : values)
            Data1.rsGeneral.Fields(column) = value;
        Data1.rsGeneral.Update();
        closeData();
    }

    static void storePolicy(const char* notify, const char* expiration)
    {
        store({{General::PolicyNotify, notify}, {General::PolicyExpiration, expiration}});
    }

    static void running(const QStringList& names)
    {
        std::vector<sys::Process> processes(static_cast<std::size_t>(names.size()));
        for (std::size_t at = 0; at < processes.size(); ++at)
            processes[at].name = names[static_cast<int>(at)];
        frmStartup::list_Processes = [processes] { return processes; };
    }

    // As the program starts: the splash screen stands until its timer fires.
    static void start()
    {
        screen<frmBW_Splash>().show();
        screen<frmBW_Splash>().tmrLoad.elapse();
    }

    static void endRun()
    {
        forms::destroyScreens();
        closeData();
    }

    static QByteArray databaseContents()
    {
        QFile file(places::databaseFile());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
    }

    void expectRefusal(const QString& text, int flags)
    {
        const QByteArray before = databaseContents();
        expectBox(text, flags, forms::Answer::OK);
        start();
        EXPECT_EQ(endStatus(), flags == forms::box::Stop ? 3 : 1) << "the launcher offers a restore after a 3";
        EXPECT_EQ(databaseContents(), before) << "the file has been made or changed";
        EXPECT_EQ(forms::activeForm(), nullptr) << "a screen has been shown";
        endRun();
    }
};

TEST_F(StartUp, OpensEachViewOnItsFirstRowAndShowsTheMainMenu)
{
    screen<frmBW_Splash>().show();
    closeBox(screen<frmBW_Splash>()); // refuses
    EXPECT_EQ(scene(), "20 frmBW_Splash");
    screen<frmBW_Splash>().tmrLoad.elapse();
    EXPECT_EQ(scene(), "2 frmMain: cmdIn");
    EXPECT_EQ(reportTitles().AssetReport, "Asset Report - Kestrill by Brindlewick Software");
    for (storage::TableView* view : {&Data1.rsGeneral, &Data1.rsIndoor, &Data1.rsOutdoor, &Data1.rsMobile})
        EXPECT_FALSE(view->atBOF() || view->atEOF());
    for (storage::TableView* view : {&Data1.rsBank, &Data1.rsInventory, &Data1.rsPrint})
        EXPECT_TRUE(view->isOpen());
}

TEST_F(StartUp, OfAFirstRunLeadsToTheIntroductionWithoutAnAlert)
{
    storePolicy("Yes", "1/1/2020");
    for (const char* introduced : {"None", "", "0", "01", " 1"}) {
        SCOPED_TRACE(introduced);
        store({{General::Introduced, introduced}});
        start();
        EXPECT_EQ(scene(), "17 frmIntroduction: cmdOK");
        endRun();
    }
}

// Today is 24 November 2026.
TEST_F(StartUp, SaysWhenThePolicyExpiresAndGoesOnToTheMenu)
{
    const char* const expired = "Your Insurance Policy Has Expired...Please Renew Your Insurance Policy So You Can "
                                "Ensure Coverage In The Event Of Theft Or Disaster!";
    const char* const today = "    Your Insurance Policy Expires Today! ";
    const struct {
        const char* notify;
        const char* expiration;
        const char* text; // null: no alert
    } alerts[] = {
        {"Yes", "11/25/1950", expired},
        {"Yes", "11/23/2026", expired},
        {"Yes", "11/24/2026", today},
        {"yes", "11/24/2026", today},
        {"YES", "11/24/2026", today},
        {"Yes ", "11/24/2026", nullptr},
        {"No", "11/24/2026", nullptr},
        {"No", "None", nullptr},
        {"Yes", "11/25/2026", "   Your Insurance Policy Expires In 1 Day!"},
        {"Yes", "11/26/2026", "Your Insurance Policy Expires In 2 Days!"},
        {"Yes", "12/24/2026", "Your Insurance Policy Expires In 30 Days!"},
        {"Yes", "12/25/2026", nullptr},
    };
    for (const auto& alert : alerts) {
        SCOPED_TRACE(testing::Message() << alert.notify << ", " << alert.expiration);
        storePolicy(alert.notify, alert.expiration);
        if (alert.text)
            expectBox(alert.text, Information, forms::Answer::OK);
        start();
        EXPECT_EQ(scene(), "2 frmMain: cmdIn");
        endRun();
    }
}

TEST_F(StartUp, RefusesToRunBesideAnotherInstanceWhoseNameHoldsThePhraseInThisCase)
{
    running({"Kestrill", "kestrill", "KESTRILL", "kestrel"});
    start();
    EXPECT_EQ(scene(), "2 frmMain: cmdIn");

    endRun();
    QFile::remove(places::databaseFile());
    running({"Kestrill", "MyKestrillViewer.exe"});
    expectRefusal("Kestrill Is Already Running!", Exclamation);
}

TEST_F(StartUp, BlamesTheDatabaseForADateThatIsNoneOrTooFarAwayAFileThatIsNoneAndAMissingOne)
{
    for (const char* expiration : {"None", "", "2/30/2027", "1/1/2200"}) {
        SCOPED_TRACE(expiration);
        storePolicy("Yes", expiration);
        expectRefusal(LoadFailure, Stop);
    }
    QFile file(places::databaseFile());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.write(QByteArray(4096, 'x'));
    file.close();
    expectRefusal(LoadFailure, Stop);
    file.remove();
    expectRefusal(LoadFailure, Stop);
}

} // namespace
