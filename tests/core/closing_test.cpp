// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/earlier_backups.h"
#include "data/places.h"
#include "frame/ending.h"
#include "frame/frmExit.h"
#include "frame/frmMain.h"
#include "frame/frmProgress.h"
#include "platform/system/files.h"
#include "support/files.h"
#include "support/harness.h"

#include <QWidget>

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

    static std::string safeWithoutBackup()
    {
        return AllSafe + "\nNo backup of it could be made in " + places::backupFolder().toStdString() + '.';
    }

    static QString file() { return places::databaseFile(); }
    static QString backupFile() { return places::backupFolder() + "/KTL.db"; }
    static std::string known() { return ending::whatIsKnown().toStdString(); }
};

TEST_F(Closing, OverwritesTheLastBackupLeavesWhatIsNotItsOwnAndEndsWithTheGoodbye)
{
    putFile(backupFile(), "an older copy");
    putFile(places::backupFolder() + "/letter.txt", "not ours");
    putFile(file() + "-foreign-journal", "put aside");
    putFile(file() + places::RestoringSuffix + '1', "of a restore that was killed");
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
    const auto rows = [](const storage::TableView& view) { return rowsOf(view, Names::Location, Names::Standard); };
    std::map<storage::TableView*, QStringList> wanted;
    for (storage::TableView* view : {&Data1.rsIndoor, &Data1.rsOutdoor, &Data1.rsMobile}) {
        for (const QStringList& names : {QStringList{"0", "0", "0"}, {"Attic", "0", "0"}, {"0", "Tools", "0"},
                 {"0", "0", "Lamp"}, {"", "0", "0"}, {"0", "0", "0"}})
            addNames(*view, names);
        addNames(*view, {"0", "0", "0"}, 1);
        wanted[view] = rows(*view);
        EXPECT_EQ(wanted[view].removeAll("0|0|0|0"), 2);
    }
    closeProgram();
    const auto& bar = screen<frmProgress>().pbSave;
    EXPECT_EQ(bar.value(), wanted[&Data1.rsMobile].size() + 2) << "each table fills the bar anew";
    EXPECT_EQ(line(bar.value(), bar.widget()->property("maximum").toInt()), line(bar.max(), bar.max()));
    openData();
    for (const auto& [view, left] : wanted)
        EXPECT_EQ(rows(*view), left);
}

TEST_F(Closing, RemovesTheOnlyRowOfATableToo)
{
    for (storage::TableView* view : {&Data1.rsIndoor, &Data1.rsOutdoor, &Data1.rsMobile})
        removeRows(*view);
    addNames(Data1.rsOutdoor, {"0", "0", "0"});
    addNames(Data1.rsMobile, {"0", "0", "0"});
    closeProgram();
    EXPECT_EQ(front(), "2 frmExit");
    openData();
    EXPECT_EQ(line(Data1.rsOutdoor.RecordCount(), Data1.rsMobile.RecordCount()), "0, 0");
}

TEST_F(Closing, ReportsADatabaseThatDoesNotReadThroughAndKeepsTheOldBackup)
{
    putFile(backupFile(), "the last good copy");
    QByteArray damaged = bytesOf(file());
    damaged.replace(damaged.size() - 512, 256, QByteArray(256, 'x')); // in the last page, which no view reads again
    putFile(file(), damaged);
    failToClose("the last good copy",
        AllOf(StartsWith("Your data may not be whole.\nThe file with"), HasSubstr("What was found: Database"),
            HasSubstr(file().toStdString()),
            HasSubstr("The backup of the last normal close: " + backupFile().toStdString() + '\n')));
}

TEST_F(Closing, ReportsADatabaseThatWasMovedAwayAndMakesNoBackup)
{
    ASSERT_TRUE(QFile::rename(file(), file() + ".moved"));
    failToClose("(missing)", AllOf(HasSubstr("KTL.db was moved"), HasSubstr("There is no backup yet.\n")));
}

TEST_F(Closing, ReportsABackupThatLacksARowAndKeepsTheOldOne)
{
    putFile(backupFile(), "the last good copy");
    const QByteArray before = bytesOf(file());
    addNames(Data1.rsIndoor, {"Attic", "0", "0"});
    putFile(file(), before);
    closeProgram();
    const auto failure = reportedFailure();
    ASSERT_TRUE(failure);
    EXPECT_THAT(failure->failure.toStdString(), HasSubstr("the backup copy of Indoor_Items doesn't hold its"));
    EXPECT_EQ(bytesOf(backupFile()), "the last good copy");
}

TEST_F(Closing, ReportsABackupThatIsOnlyALinkToTheDatabase)
{
    closeData();
    const QString elsewhere = places::databaseFolder() + "/../elsewhere.db";
    ASSERT_TRUE(QFile::rename(file(), elsewhere) && QFile::link(elsewhere, file()));
    openData();
    failToClose(bytesOf(elsewhere), safeWithoutBackup());
}

// The rows are counted when the store is closed, and again in the file.
TEST_F(Closing, OfAFailedRunTellsOfRowsThatTheFileDoesNotHold)
{
    addNames(Data1.rsIndoor, {"Attic", "0", "0"});
    const QByteArray before = bytesOf(file());
    addNames(Data1.rsIndoor, {"Cellar", "0", "0"});
    EXPECT_TRUE(ending::closeStore());
    putFile(file(), before);
    EXPECT_THAT(known(), HasSubstr("Indoor_Items doesn't hold its"));
    putFile(file() + "-journal", QByteArray(2000, 'j'));
    EXPECT_THAT(known(), HasSubstr("Leave KTL.db-journal beside it"));
    QFile::remove(file() + "-journal");
    openData();
    QFile::remove(file());
    internal::CaptureStderr();
    EXPECT_FALSE(ending::closeStore());
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
        earlier::Keeping().thin({});
    }

    // A close that broke off and one that didn't, of which each tries to keep the backup.
    void closeTwice(bool byLink)
    {
        putBackup("of yesterday", yesterday);
        const earlier::Keeping brokenOff;
        EXPECT_EQ(sys::isSameFile(earlier::all().at(0).file, backupFile()), byLink);
        EXPECT_TRUE(earlier::isOf(earlier::all().at(0), backupFile()));
        closeProgram();
        EXPECT_EQ(bytesOf(backupFile()), bytesOf(file()));
        ASSERT_EQ(names(), QStringList(nameOf(yesterday)));
        EXPECT_EQ(bytesOf(earlier::all().at(0).file), "of yesterday");
        EXPECT_FALSE(earlier::isOf(earlier::all().at(0), backupFile()));
        EXPECT_EQ(line(proved(earlier::all().at(0).file), proved(backupFile())), "nothing, 0 $0.00");
    }

    // The backup of the last close is replaced; what was proved of it holds for the one that is kept, until it changes.
    void replaceProved()
    {
        earlier::Keeping keeping;
        putBackup("of today", now);
        keeping.thin({7, "$1.00"});
        const QString kept = earlier::all().at(0).file;
        EXPECT_EQ(line(proved(kept), proved(backupFile())), "0 $0.00, 7 $1.00");
        const auto times = QFileInfo(kept).lastModified();
        putFile(kept, bytesOf(kept));
        QFile same(kept);
        ASSERT_TRUE(same.open(QIODevice::ReadWrite) && same.setFileTime(times, QFileDevice::FileModificationTime));
        putFile(backupFile() + "-journal", "which makes it another one");
        EXPECT_EQ(line(proved(kept), proved(backupFile())), "nothing, nothing");
    }

    static QString proved(const QString& file)
    {
        const auto found = proofs::Book().of(file);
        return found ? QString("%1 %2").arg(found->assets).arg(found->total) : "nothing";
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

    const QDateTime now{{2020, 6, 15}, {12, 0}}; // one backup more is kept where a day or a month ends meanwhile
    const QDateTime yesterday = now.addDays(-1);
};

TEST_F(EarlierBackups, AreKeptByALinkOfWhatTheCloseReplaces)
{
    closeTwice(true);
    replaceProved();
    const QString folder = QFileInfo(earlier::all().at(0).file).path();
    EXPECT_EQ(QFile::permissions(folder), QFile::Permissions(0x7700)) << "its user alone";
    keepBackup("one of that second", yesterday);
    EXPECT_THAT(names(), IsSupersetOf({nameOf(yesterday), nameOf(yesterday) + "_2"}));
}

TEST_F(EarlierBackups, AreCopiedOnceWhereTheBackupLiesOnAnotherFileSystem)
{
    const QTemporaryDir memory("/dev/shm/backup-XXXXXX");
    places::setFolders(places::databaseFolder(), memory.path());
    closeTwice(false);
}

TEST_F(EarlierBackups, AreThinnedOnceTheNewBackupIsInPlaceAndLeaveWhatIsNotTheirs)
{
    putBackup("aside", now);
    putAside();
    QDir(places::earlierBackupsFolder()).mkdir("notes");
    // A folder that its user has laid elsewhere, behind a link, which is the first that should go.
    const QString linked = places::earlierBackupsFolder() + '/' + nameOf(now.addDays(-1000).addSecs(-60 * 13 - 1));
    putFile(places::databaseFolder() + "-elsewhere/KTL.db", "linked");
    ASSERT_TRUE(QFile::link(places::databaseFolder() + "-elsewhere", linked));
    for (int close = 14; close > 0; --close) {
        putBackup("x", now.addDays(-1000).addSecs(-60 * close));
        const earlier::Keeping brokenOff;
    }
    putBackup("damaged", yesterday);
    putFile(places::databaseFolder() + "/more/letters.txt", "for the backup");
    putFile(places::backupFolder() + "/more", "in the way");
    failToClose("damaged", safeWithoutBackup());
    ASSERT_EQ(names().size(), 17);
    internal::CaptureStderr();
    earlier::Keeping().thin({});
    EXPECT_THAT(internal::GetCapturedStderr(), HasSubstr("Earlier backups: "));
    EXPECT_EQ(bytesOf(linked + "/KTL.db"), "linked");
    ASSERT_EQ(names().size(), 12) << "the last ten, and that one";
    EXPECT_TRUE(names().last().endsWith("_put-aside"));
    const QStringList all = QDir(places::earlierBackupsFolder()).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    EXPECT_EQ(all.size(), 13);
}

// Files without contents seem large and take no room.
TEST_F(EarlierBackups, TakeNoMoreThanATenthOfTheFreeDiskExceptTheNewestAndTheOldest)
{
    const qint64 third = sys::Folder(places::databaseFolder()).freeSpace() / 30; // or some more by then, or less
    putBackup({}, now, third / 100 * 85);
    putAside();
    for (int minute = 10; minute > 6; --minute)
        keepBackup({}, now.addSecs(-60 * minute), third / 100 * 85);
    EXPECT_EQ(names().first(2), QStringList({nameOf(now.addSecs(-420)), nameOf(now.addSecs(-600))}));
    ASSERT_EQ(names().size(), 3);
    EXPECT_TRUE(names().last().endsWith("_put-aside"));
    keepBackup({}, now, third * 30);
    EXPECT_EQ(names().first(2), QStringList({nameOf(now), nameOf(now.addSecs(-600))})) << "whatever room they take";
}

TEST_F(EarlierBackups, ThatCantBeKeptEndangerNeitherTheCloseNorTheBackupAndTheUserIsTold)
{
    putBackup("of yesterday", yesterday);
    putFile(places::earlierBackupsFolder() + '/' + nameOf(yesterday), "in the way");
    internal::CaptureStderr();
    closeProgram();
    const QString told = QString::fromStdString(internal::GetCapturedStderr());
    EXPECT_EQ(told.count("Earlier backups: File failure: opening the folder "), 1);
    const QString trouble =
        QString("The backup of %1 could not be kept: Not a directory.").arg(yesterday.toString("M/d/yyyy h:mm AP"));
    EXPECT_EQ(
        line(bytesOf(backupFile()) == bytesOf(file()), screen<frmExit>().lblTrouble.caption()), "true, " + trouble);
    EXPECT_EQ(earlier::lastTrouble(), trouble);
    earlier::Keeping().thin({});
    EXPECT_EQ(earlier::lastTrouble(), "");
    QDir(places::earlierBackupsFolder()).removeRecursively();
    putFile(places::earlierBackupsFolder(), "in the way");
    internal::CaptureStderr();
    earlier::Keeping().thin({});
    EXPECT_EQ(QString::fromStdString(internal::GetCapturedStderr()).count("Earlier backups: "), 1);
}

} // namespace
