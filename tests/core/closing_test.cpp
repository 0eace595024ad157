// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/data_store.h"
#include "core/ending.h"
#include "core/frmExit.h"
#include "core/frmMain.h"
#include "core/frmProgress.h"
#include "core/places.h"
#include "platform/storage/schema.h"
#include "support/harness.h"

#include <QDir>
#include <QFile>

#include <gmock/gmock.h>

using forms::Answer;
using forms::screen;
using storage::TableView;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

const char* const CloseQuestion = "Are You Sure You Want To Close Kestrill?";

QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
}

void write(const QString& path, const QByteArray& contents)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    file.write(contents);
}

void addName(TableView& view, const QStringList& names, int standard = 0)
{
    view.AddNew();
    for (int column = Names::Location; column <= Names::Type; ++column)
        view.Fields(column) = names[column];
    view.Fields(Names::Standard) = standard;
    view.Update();
}

class Closing : public ScreenTest {
protected:
    void SetUp() override
    {
        ScreenTest::SetUp();
        screen<frmMain>().show();
    }

    void closeProgram()
    {
        expectBox(CloseQuestion, 36, Answer::Yes);
        click(screen<frmMain>().cmdLeave);
    }

    static QString backupFile() { return places::backupFolder() + "/KTL.db"; }

    static qint64 rowsInBackup(const QString& table)
    {
        for (const storage::TableCount& count : storage::checkDatabase(backupFile(), databaseKey()))
            if (count.table == table)
                return count.rows;
        return -1;
    }
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
    const QString tables[] = {"Indoor_Items", "Outdoor_Items", "Mobile_Items"};
    TableView* const views[] = {&Data1.rsIndoor, &Data1.rsOutdoor, &Data1.rsMobile};
    qint64 before[3];
    for (int area = 0; area < 3; ++area) {
        before[area] = views[area]->RecordCount();
        addName(*views[area], {"0", "0", "0"});
        addName(*views[area], {"0", "0", "0"}, 1);
        addName(*views[area], {"Attic", "0", "0"});
        addName(*views[area], {"0", "Tools", "0"});
        addName(*views[area], {"0", "0", "Lamp"});
        addName(*views[area], {"", "0", "0"});
        addName(*views[area], {"0", "0", "0"});
    }
    closeProgram();
    const auto& bar = screen<frmProgress>().pbSave;
    EXPECT_EQ(bar.value(), before[2] + 7) << "each table fills the bar anew";
    EXPECT_EQ(bar.max(), bar.value());
    for (int area = 0; area < 3; ++area)
        EXPECT_EQ(rowsInBackup(tables[area]), before[area] + 5) << tables[area].toStdString();
}

TEST_F(Closing, OverwritesTheLastBackupAndLeavesWhatIsNotItsOwn)
{
    QDir().mkpath(places::backupFolder());
    write(backupFile(), "an older copy");
    write(places::backupFolder() + "/letter.txt", "not ours");
    write(places::databaseFile() + "-foreign-journal", "put aside");
    closeProgram();
    EXPECT_EQ(contentsOf(backupFile()), contentsOf(places::databaseFile()));
    EXPECT_EQ(QFile::permissions(backupFile()) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    EXPECT_EQ(QDir(places::backupFolder()).entryList(QDir::Files), QStringList({"KTL.db", "letter.txt"}));
    EXPECT_EQ(contentsOf(places::backupFolder() + "/letter.txt"), "not ours");
    EXPECT_EQ(ending::what_Is_Known(), "Everything that you saved is safe.");
}

TEST_F(Closing, ReportsADatabaseThatDoesNotReadThroughAndKeepsTheOldBackup)
{
    QDir().mkpath(places::backupFolder());
    write(backupFile(), "the last good copy");
    // Damage in the last page, which no view has to read again.
    QFile file(places::databaseFile());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.seek(file.size() - 512);
    file.write(QByteArray(256, 'x'));
    file.close();
    closeProgram();
    EXPECT_TRUE(reportedFailure());
    EXPECT_FALSE(Data1.Home.isOpen()) << "the views are closed before the copy is made";
    EXPECT_EQ(contentsOf(backupFile()), "the last good copy");
    EXPECT_THAT(ending::what_Is_Known().toStdString(),
        AllOf(StartsWith("Your data may not be whole. Database"), HasSubstr(places::databaseFile().toStdString()),
            EndsWith("The backup of the last normal close: " + backupFile().toStdString())));
}

TEST_F(Closing, ReportsADatabaseThatWasMovedAwayAndMakesNoBackup)
{
    ASSERT_TRUE(QFile::rename(places::databaseFile(), places::databaseFile() + ".moved"));
    closeProgram();
    EXPECT_TRUE(reportedFailure());
    EXPECT_FALSE(QFile::exists(places::backupFolder()));
    EXPECT_THAT(ending::what_Is_Known().toStdString(),
        AllOf(HasSubstr("KTL.db was moved"), EndsWith("There is no backup yet.")));
}

TEST_F(Closing, ReportsABackupThatIsOnlyALinkToTheDatabase)
{
    closeData();
    const QString elsewhere = places::databaseFolder() + "/../elsewhere.db";
    ASSERT_TRUE(QFile::rename(places::databaseFile(), elsewhere) && QFile::link(elsewhere, places::databaseFile()));
    openData();
    closeProgram();
    EXPECT_TRUE(reportedFailure());
    EXPECT_EQ(ending::what_Is_Known(), "Everything that you saved is safe.");
}

// The rows are counted when the store is closed, and again in the file.
TEST_F(Closing, OfAFailedRunTellsOfRowsThatTheFileDoesNotHold)
{
    addName(Data1.rsIndoor, {"Attic", "0", "0"});
    const QByteArray before = contentsOf(places::databaseFile());
    addName(Data1.rsIndoor, {"Cellar", "0", "0"});
    EXPECT_TRUE(ending::close_Store());
    write(places::databaseFile(), before);
    EXPECT_THAT(ending::what_Is_Known().toStdString(), HasSubstr("Indoor_Items doesn't hold its"));
    write(places::databaseFile() + "-journal", QByteArray(2000, 'j'));
    EXPECT_THAT(ending::what_Is_Known().toStdString(), HasSubstr("Leave KTL.db-journal beside it"));
}

} // namespace
