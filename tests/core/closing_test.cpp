// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/earlier_backups.h"
#include "core/ending.h"
#include "core/frmExit.h"
#include "core/frmMain.h"
#include "core/frmProgress.h"
#include "core/places.h"
#include "platform/system/files.h"
#include "support/files.h"
#include "support/harness.h"

using namespace testing;
using forms::screen;

namespace {

const std::string AllSafe = "Everything that you saved is safe.";

class Closing : public ScreenTest {
protected:
    Closing() { screen<frmMain>().show(); }

    void closeProgram() { clickTold(screen<frmMain>().cmdLeave, CloseKestrill, YesNoQuestion, forms::Answer::Yes); }

    /// A close that fails and leaves this backup; the run-time report tells this.
    void failToClose(const QByteArray& backup, const Matcher<std::string>& known)
    {
        closeProgram();
        EXPECT_TRUE(reportedFailure());
        closeBox(screen<frmProgress>()); // refuses
        EXPECT_EQ(front(), "2 frmProgress; frmMain");
        EXPECT_FALSE(Data1.Home.isOpen()) << "the views are closed before the copy is made";
        EXPECT_EQ(bytesOf(backupFile()), backup);
        EXPECT_THAT(this->known(), known);
    }

    static QString file() { return places::databaseFile(); }
    static QString backupFile() { return places::backupFolder() + "/KTL.db"; }
    static std::string known() { return ending::what_Is_Known().toStdString(); }
};

TEST_F(Closing, OverwritesTheLastBackupLeavesWhatIsNotItsOwnAndEndsWithTheGoodbye)
{
    putFile(backupFile(), "an older copy");
    putFile(places::backupFolder() + "/letter.txt", "not ours");
    putFile(file() + "-foreign-journal", "put aside");
    putFile(places::databaseFolder() + "/notes.txt", "beside it");
    closeProgram();
    EXPECT_EQ(bytesOf(backupFile()), bytesOf(file()));
    EXPECT_EQ(QDir(places::backupFolder()).entryList(QDir::Files), QStringList({"KTL.db", "letter.txt", "notes.txt"}));
    EXPECT_EQ(known(), AllSafe);
    closeBox(screen<frmExit>()); // refuses
    EXPECT_EQ(line(scene(), Data1.Home.isOpen(), endStatus().has_value()), "2 frmExit, false, false");
    screen<frmExit>().tmExit.elapse();
    EXPECT_EQ(endStatus(), 0);
}

TEST_F(Closing, RemovesTheDeadRowsOfEachNameTableAndNoOthers)
{
    std::map<storage::TableView*, int> wanted;
    for (storage::TableView* view : {&Data1.rsIndoor, &Data1.rsOutdoor, &Data1.rsMobile}) {
        wanted[view] = view->RecordCount() + 5;
        for (const QStringList& names : {QStringList{"0", "0", "0"}, {"Attic", "0", "0"}, {"0", "Tools", "0"},
                 {"0", "0", "Lamp"}, {"", "0", "0"}, {"0", "0", "0"}})
            addNames(*view, names);
        addNames(*view, {"0", "0", "0"}, 1);
    }
    closeProgram();
    const auto& bar = screen<frmProgress>().pbSave;
    EXPECT_EQ(bar.value(), wanted[&Data1.rsMobile] + 2) << "each table fills the bar anew";
    EXPECT_EQ(bar.max(), bar.value());
    openData();
    for (const auto& [view, rows] : wanted)
        EXPECT_EQ(view->RecordCount(), rows);
}

TEST_F(Closing, ReportsADatabaseThatDoesNotReadThroughAndKeepsTheOldBackup)
{
    putFile(backupFile(), "the last good copy");
    QByteArray damaged = bytesOf(file());
    damaged.replace(damaged.size() - 512, 256, QByteArray(256, 'x')); // in the last page, which no view reads again
    putFile(file(), damaged);
    failToClose("the last good copy",
        AllOf(StartsWith("Your data may not be whole. Database"), HasSubstr(file().toStdString()),
            EndsWith("The backup of the last normal close: " + backupFile().toStdString())));
}

TEST_F(Closing, ReportsADatabaseThatWasMovedAwayAndMakesNoBackup)
{
    ASSERT_TRUE(QFile::rename(file(), file() + ".moved"));
    failToClose("(missing)", AllOf(HasSubstr("KTL.db was moved"), EndsWith("There is no backup yet.")));
}

TEST_F(Closing, ReportsABackupThatIsOnlyALinkToTheDatabase)
{
    closeData();
    const QString elsewhere = places::databaseFolder() + "/../elsewhere.db";
    ASSERT_TRUE(QFile::rename(file(), elsewhere) && QFile::link(elsewhere, file()));
    openData();
    failToClose(bytesOf(elsewhere), AllSafe);
}

// The rows are counted when the store is closed, and again in the file.
TEST_F(Closing, OfAFailedRunTellsOfRowsThatTheFileDoesNotHold)
{
    addNames(Data1.rsIndoor, {"Attic", "0", "0"});
    const QByteArray before = bytesOf(file());
    addNames(Data1.rsIndoor, {"Cellar", "0", "0"});
    EXPECT_TRUE(ending::close_Store());
    putFile(file(), before);
    EXPECT_THAT(known(), HasSubstr("Indoor_Items doesn't hold its"));
    putFile(file() + "-journal", QByteArray(2000, 'j'));
    EXPECT_THAT(known(), HasSubstr("Leave KTL.db-journal beside it"));
    QFile::remove(file() + "-journal");
    openData();
    QFile::remove(file());
    internal::CaptureStderr();
    EXPECT_FALSE(ending::close_Store());
    EXPECT_THAT(internal::GetCapturedStderr(), HasSubstr("KTL.db was moved"));
}

class EarlierBackups : public Closing {
protected:
    // In place of the one that is there, whose contents may have another name.
    static void putBackup(const QByteArray& contents, const QDateTime& made, qint64 size = -1)
    {
        QFile::remove(backupFile());
        putFile(backupFile(), contents);
        QFile backup(backupFile());
        ASSERT_TRUE(backup.open(QIODevice::ReadWrite) && (size < 0 || backup.resize(size)));
        ASSERT_TRUE(backup.setFileTime(made, QFileDevice::FileModificationTime));
    }

    // A close that finds it there.
    static void keepBackup(const QByteArray& contents, const QDateTime& made, qint64 size = -1)
    {
        putBackup(contents, made, size);
        earlier::keep_Backup();
    }

    // A close that broke off and one that didn't, of which each tries to keep the backup.
    void closeTwice(bool byLink)
    {
        keepBackup("of yesterday", yesterday);
        EXPECT_EQ(sys::isSameFile(earlier::all().at(0).file, backupFile()), byLink);
        EXPECT_TRUE(earlier::isOf(earlier::all().at(0), backupFile()));
        closeProgram();
        EXPECT_EQ(bytesOf(backupFile()), bytesOf(file()));
        ASSERT_EQ(names(), QStringList(nameOf(yesterday)));
        EXPECT_EQ(bytesOf(earlier::all().at(0).file), "of yesterday");
        EXPECT_FALSE(earlier::isOf(earlier::all().at(0), backupFile()));
    }

    // Today's file, which only its user gives up.
    void putAside() const
    {
        sys::Folder::made(places::earlierBackupsFolder())
            .madeEntered(earlier::freeName(now.addYears(-9), true))
            .keep(sys::Folder(places::backupFolder()), "KTL.db", "KTL.db");
    }

    static QStringList names()
    {
        QStringList names;
        for (const earlier::KeptFile& kept : earlier::all())
            names.append(kept.name);
        return names;
    }

    static QString nameOf(const QDateTime& made) { return made.toString("yyyy-MM-dd_HH-mm-ss"); }

    const QDateTime now = QDateTime::currentDateTime();
    const QDateTime yesterday = now.addDays(-1);
};

TEST_F(EarlierBackups, AreKeptByALinkOfWhatTheCloseReplaces)
{
    closeTwice(true);
    const QString folder = QFileInfo(earlier::all().at(0).file).path();
    EXPECT_EQ(QFile::permissions(folder), QFile::Permissions(0x7700)) << "its user alone";
    keepBackup("another of that second", yesterday);
    EXPECT_THAT(names(), UnorderedElementsAre(nameOf(yesterday), nameOf(yesterday) + "_2"));
}

TEST_F(EarlierBackups, AreCopiedOnceWhereTheBackupLiesOnAnotherFileSystem)
{
    const QTemporaryDir memory("/dev/shm/backup-XXXXXX");
    places::setFolders(places::databaseFolder(), memory.path());
    closeTwice(false);
}

TEST_F(EarlierBackups, AreThinnedAndLeaveWhatIsNotTheirs)
{
    putBackup("aside", now);
    putAside();
    QDir(places::earlierBackupsFolder()).mkdir("notes");
    for (int close = 0; close < 14; ++close)
        keepBackup("x", now.addDays(-1000 - close));
    ASSERT_EQ(names().size(), 11) << "too old, but the last ten";
    EXPECT_TRUE(names().last().endsWith("_put-aside"));
    EXPECT_EQ(QDir(places::earlierBackupsFolder()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 12);
}

// Files without contents seem large and take no room.
TEST_F(EarlierBackups, TakeNoMoreThanATenthOfTheFreeDisk)
{
    const qint64 third = sys::Folder(places::databaseFolder()).freeSpace() / 30;
    putBackup({}, now, third / 100 * 99);
    putAside();
    for (int minute = 10; minute > 6; --minute)
        keepBackup({}, now.addSecs(-60 * minute), third / 100 * 99);
    ASSERT_EQ(names().size(), 3);
    EXPECT_EQ(names().at(1), nameOf(now.addSecs(-480))) << "the oldest have gone";
    EXPECT_TRUE(names().last().endsWith("_put-aside"));
}

TEST_F(EarlierBackups, ThatCantBeKeptEndangerNeitherTheCloseNorTheBackup)
{
    putBackup("of yesterday", yesterday);
    putFile(places::earlierBackupsFolder(), "in the way");
    internal::CaptureStderr();
    closeProgram();
    EXPECT_THAT(internal::GetCapturedStderr(), HasSubstr("Earlier backups: File failure"));
    EXPECT_EQ(bytesOf(backupFile()), bytesOf(file()));
}

} // namespace
