// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools_test.h"

#include "data/earlier_backups.h"
#include "platform/storage/file_lock.h"
#include "platform/values/failure.h"
#include "support/disk.h"
#include "tools/household.h"
#include "tools/import_source.h"
#include "tools/mending.h"

#include <algorithm>

namespace {

class RestoringTest : public ToolsTest {
protected:
    // A backup with one asset; today's file has a second one.
    RestoringTest()
    {
        addAsset("Lamp", "$10.00");
        backUp();
        old_ = bytesOf(backupFile());
        addAsset("Chair", "$5.50");
        today_ = bytesOf(today());
        sys::Folder::made(places::earlierBackupsFolder());
        putFile(Lock, {});
    }

    static Backup last() { return backups::find(backups::all(), "last"); }

    static std::optional<int> refused(const restoring::Steps& steps = {})
    {
        return refusal([&steps] { restoring::lay_Down(last(), steps); });
    }

    static QString wordsOf(const std::function<void()>& work)
    {
        try {
            work();
        } catch (const Refusal& refusal) {
            return refusal.words();
        }
        return {};
    }

    static restoring::Steps failingAt(int step)
    {
        return [step](int now) {
            if (now == step)
                throw values::RuntimeFailure(values::FailureKind::File, "the disk");
        };
    }

    static QStringList inFolder() { return QDir(places::databaseFolder()).entryList(QDir::Files | QDir::Hidden); }

    const QString Journal = today() + "-journal";
    const QString Lock = places::earlierBackupsFolder() + "/.restoring";
    QByteArray old_;
    QByteArray today_;
};

} // namespace

TEST_F(RestoringTest, KilledAtAnyStepLeavesTodaysFileOrTheBackupAndGoesOnAfterwards)
{
    breakOff();
    const QByteArray brokenOff = bytesOf(today());
    const QByteArray itsJournal = bytesOf(Journal);
    ASSERT_FALSE(itsJournal.isEmpty());
    for (const bool isDamaged : {false, true}) {
        int killed = 0;
        for (int step = 1; step <= restoring::StepCount; ++step) {
            SCOPED_TRACE(step);
            putFile(today(), brokenOff);
            putFile(Journal, itsJournal);
            if (isDamaged)
                damage(today());
            const QByteArray before = bytesOf(today());
            killed += inProcess([step] {
                restoring::lay_Down(last(), [step](int now) {
                    if (now == step)
                        _exit(1);
                });
            });
            for (const earlier::KeptFile& kept : earlier::all())
                EXPECT_FALSE(sys::isSameFile(kept.file, today())) << "it would change with what is stored next";
            if (bytesOf(today()) == old_)
                EXPECT_FALSE(QFile::exists(Journal)) << "which would destroy the backup";
            else if (isDamaged)
                EXPECT_EQ(bytesOf(today()), before);
            else
                EXPECT_EQ(Household(today()).summary(), "2 assets, $15.50");
            const bool hasJournal = isDamaged && QFile::exists(Journal);
            const QString aside = places::earlierBackupsFolder() + '/' + restoring::lay_Down(last()).putAside;
            EXPECT_EQ(bytesOf(today()), old_);
            EXPECT_EQ(inFolder(), QStringList("KTL.db"));
            EXPECT_EQ(bytesOf(aside + "/KTL.db-journal"), hasJournal ? itsJournal : "(missing)") << "of its file";
        }
        EXPECT_EQ(killed, 8) << "steps without a journal of the backup's own";
    }
    const QString aside = places::earlierBackupsFolder() + "/2020-11-20_08-00-00_put-aside/KTL.db";
    putFile(aside, brokenOff);
    putFile(aside + "-journal", itsJournal);
    EXPECT_EQ(restoring::lay_Down(backups::find(backups::all(), "2020")).summary, "2 assets, $15.50");
    EXPECT_EQ(inFolder(), QStringList("KTL.db"));
}

TEST_F(RestoringTest, AFailureAtAnyStepLeavesTodaysFileWithItsJournal)
{
    damage(today());
    putFile(Journal, QByteArray(2000, 'j'));
    const auto before = everything();
    for (int step = 1; step <= 7; ++step) {
        SCOPED_TRACE(step);
        EXPECT_EQ(refused(failingAt(step)), exit_code::Failed);
        EXPECT_EQ(everything(), before);
    }
    const auto layDown = [](const restoring::Steps& steps = {}) {
        return wordsOf([&steps] { restoring::lay_Down(last(), steps); });
    };
    const QString words = layDown([](int step) {
        Disk::refuse(step == 7 ? "link" : "never", EIO);
        failingAt(7)(step);
    });
    Disk::refuse("never", 0);
    EXPECT_TRUE(words.startsWith("The restore failed. Today's file is in its place, but its journal could not be put "
                                 "back beside it (File failure: keeping "));
    EXPECT_EQ(bytesOf(words.section("It lies in ", 1).chopped(1) + "/KTL.db-journal"), QByteArray(2000, 'j'));
    damage(backupFile()); // since it was read
    EXPECT_EQ(layDown(), "This backup can't be restored: database disk image is malformed.");
    QDir().mkdir(today() + ".restoring-journal"); // which can't be cleared away
    EXPECT_TRUE(layDown().startsWith("File failure: removing "));
}

// What can't be copied gets a second name, until the next look.
TEST_F(RestoringTest, GivesWhatWasPutAsideAFileOfItsOwnAtTheNextLook)
{
    Disk::refuse("sync KTL.db.part", ENOSPC);
    inProcess([] { restoring::lay_Down(last(), [](int step) { step == 6 ? _exit(1) : void(); }); });
    Disk::refuse("never", 0);
    const QString aside = earlier::all().at(0).file;
    ASSERT_TRUE(sys::isSameFile(aside, today()));
    {
        const storage::FileLock running(today());
        restoring::part_From_Today();
    }
    ASSERT_TRUE(sys::isSameFile(aside, today())) << "in use";
    restoring::part_From_Today();
    EXPECT_EQ(line(sys::isSameFile(aside, today()), bytesOf(aside) == today_), "false, true");
}

TEST_F(RestoringTest, NobodyOpensTheFileFromItsPuttingAsideToItsLastStep)
{
    const auto open = [] {
        try {
            openData();
        } catch (const values::RuntimeFailure&) {
            _exit(3);
        }
    };
    restoring::lay_Down(last(), [&open](int step) { EXPECT_EQ(inProcess(open), 3) << step; });
    EXPECT_EQ(bytesOf(today()), old_);
    const storage::FileLock running(today());
    EXPECT_EQ(refused(), exit_code::InUse);
}

TEST_F(RestoringTest, AMendThatIsNotNeededAnyMoreChangesNothing)
{
    runOnFile(today(), "UPDATE Personal_Info SET AssetValue = 1");
    const std::vector<mending::Mend> mends = mending::possible(Household(today()));
    ASSERT_EQ(mends.size(), 1U);
    runOnFile(today(), "UPDATE Personal_Info SET AssetValue = 155000");
    const auto before = everything();
    EXPECT_EQ(refusal([&] { mending::carry_Out(mends); }), exit_code::Failed);
    EXPECT_EQ(everything(), before);
}

TEST_F(RestoringTest, SaysThatThereIsNoRightToReadTheFoldersOfBackupsOrAList)
{
    const auto setRights = [](mode_t rights) {
        for (const QString& folder : {places::backupFolder(), places::earlierBackupsFolder()})
            ::chmod(QFile::encodeName(folder), rights);
    };
    ::chmod(QFile::encodeName(below({})), 0711);
    setRights(0);
    const QString table = below("list.csv");
    putFile(table, "Item\n");
    ::chmod(QFile::encodeName(table), 0);
    const auto countClosed = [&table] {
        if (::getuid() == 0 && ::setuid(65534) != 0) // nothing is closed to root
            _exit(9);
        std::vector<Backup> list = backups::all();
        std::ranges::for_each(list, backups::read);
        const QString words = wordsOf([&table] { importing::Source source(table); });
        _exit(static_cast<int>(std::ranges::count(list, "No permission", &Backup::state))
            + (words.endsWith("/list.csv can't be read: Permission denied.") ? 1 : 0));
    };
    EXPECT_EQ(inProcess(countClosed), 3);
    setRights(S_IRWXU);
}
