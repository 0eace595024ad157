// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/ending.h"
#include "core/frmExit.h"
#include "core/frmMain.h"
#include "core/frmProgress.h"
#include "core/places.h"
#include "platform/storage/schema.h"
#include "support/files.h"
#include "support/harness.h"

#include <QDir>

#include <gmock/gmock.h>

using forms::screen;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

class Closing : public ScreenTest {
protected:
    Closing() { screen<frmMain>().show(); }

    void closeProgram() { clickTold(screen<frmMain>().cmdLeave, CloseKestrill, YesNoQuestion, forms::Answer::Yes); }

    static qint64 rowsInBackup(const QString& table)
    {
        for (const storage::TableCount& count : storage::checkDatabase(backupFile(), databaseKey()))
            if (count.table == table)
                return count.rows;
        return -1;
    }

    static QString backupFile() { return places::backupFolder() + "/KTL.db"; }
    static std::string known() { return ending::what_Is_Known().toStdString(); }
};

TEST_F(Closing, ShowsTheGoodbyeAndEndsTheProcessWithSuccess)
{
    closeProgram();
    closeBox(screen<frmExit>()); // refuses
    EXPECT_EQ(scene(), "2 frmExit");
    EXPECT_FALSE(Data1.Home.isOpen());
    EXPECT_FALSE(endStatus());
    screen<frmExit>().tmExit.elapse();
    EXPECT_EQ(endStatus(), 0);
}

TEST_F(Closing, RemovesTheDeadRowsOfEachNameTableAndNoOthers)
{
    const std::pair<storage::TableView*, const char*> tables[] = {
        {&Data1.rsIndoor, "Indoor_Items"}, {&Data1.rsOutdoor, "Outdoor_Items"}, {&Data1.rsMobile, "Mobile_Items"}};
    std::map<QString, qint64> before;
    for (const auto& [view, table] : tables) {
        before[table] = view->RecordCount();
        for (const QStringList& names : {QStringList{"0", "0", "0"}, {"Attic", "0", "0"}, {"0", "Tools", "0"},
                 {"0", "0", "Lamp"}, {"", "0", "0"}, {"0", "0", "0"}})
            addNames(*view, names);
        addNames(*view, {"0", "0", "0"}, 1);
    }
    closeProgram();
    const auto& bar = screen<frmProgress>().pbSave;
    EXPECT_EQ(bar.value(), before["Mobile_Items"] + 7) << "each table fills the bar anew";
    EXPECT_EQ(bar.max(), bar.value());
    for (const auto& [table, rows] : before)
        EXPECT_EQ(rowsInBackup(table), rows + 5) << table.toStdString();
}

TEST_F(Closing, OverwritesTheLastBackupAndLeavesWhatIsNotItsOwn)
{
    putFile(backupFile(), "an older copy");
    putFile(places::backupFolder() + "/letter.txt", "not ours");
    putFile(places::databaseFile() + "-foreign-journal", "put aside");
    closeProgram();
    EXPECT_EQ(bytesOf(backupFile()), bytesOf(places::databaseFile()));
    EXPECT_EQ(QFile::permissions(backupFile()) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    EXPECT_EQ(QDir(places::backupFolder()).entryList(QDir::Files), QStringList({"KTL.db", "letter.txt"}));
    EXPECT_EQ(bytesOf(places::backupFolder() + "/letter.txt"), "not ours");
    EXPECT_EQ(known(), "Everything that you saved is safe.");
}

TEST_F(Closing, ReportsADatabaseThatDoesNotReadThroughAndKeepsTheOldBackup)
{
    putFile(backupFile(), "the last good copy");
    QByteArray damaged = bytesOf(places::databaseFile());
    damaged.replace(damaged.size() - 512, 256, QByteArray(256, 'x')); // in the last page, which no view reads again
    putFile(places::databaseFile(), damaged);
    closeProgram();
    EXPECT_TRUE(reportedFailure());
    EXPECT_FALSE(Data1.Home.isOpen()) << "the views are closed before the copy is made";
    EXPECT_EQ(bytesOf(backupFile()), "the last good copy");
    EXPECT_THAT(known(),
        AllOf(StartsWith("Your data may not be whole. Database"), HasSubstr(places::databaseFile().toStdString()),
            EndsWith("The backup of the last normal close: " + backupFile().toStdString())));
}

TEST_F(Closing, ReportsADatabaseThatWasMovedAwayAndMakesNoBackup)
{
    ASSERT_TRUE(QFile::rename(places::databaseFile(), places::databaseFile() + ".moved"));
    closeProgram();
    EXPECT_TRUE(reportedFailure());
    EXPECT_FALSE(QFile::exists(places::backupFolder()));
    EXPECT_THAT(known(), AllOf(HasSubstr("KTL.db was moved"), EndsWith("There is no backup yet.")));
}

TEST_F(Closing, ReportsABackupThatIsOnlyALinkToTheDatabase)
{
    closeData();
    const QString elsewhere = places::databaseFolder() + "/../elsewhere.db";
    ASSERT_TRUE(QFile::rename(places::databaseFile(), elsewhere) && QFile::link(elsewhere, places::databaseFile()));
    openData();
    closeProgram();
    EXPECT_TRUE(reportedFailure());
    EXPECT_EQ(known(), "Everything that you saved is safe.");
}

// The rows are counted when the store is closed, and again in the file.
TEST_F(Closing, OfAFailedRunTellsOfRowsThatTheFileDoesNotHold)
{
    addNames(Data1.rsIndoor, {"Attic", "0", "0"});
    const QByteArray before = bytesOf(places::databaseFile());
    addNames(Data1.rsIndoor, {"Cellar", "0", "0"});
    EXPECT_TRUE(ending::close_Store());
    putFile(places::databaseFile(), before);
    EXPECT_THAT(known(), HasSubstr("Indoor_Items doesn't hold its"));
    putFile(places::databaseFile() + "-journal", QByteArray(2000, 'j'));
    EXPECT_THAT(known(), HasSubstr("Leave KTL.db-journal beside it"));
}

} // namespace
