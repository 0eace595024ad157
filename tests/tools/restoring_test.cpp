// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools_test.h"

#include "platform/storage/schema.h"
#include "platform/values/failure.h"
#include "tools/comparison.h"
#include "tools/household.h"

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
        sys::makePrivateFolder(places::earlierBackupsFolder());
        putFile(Lock, {});
    }

    static Backup last() { return backups::find(backups::all(), "last"); }

    static std::optional<int> refused(const restoring::Steps& steps = {})
    {
        return refusal([&steps] { restoring::lay_Down(last(), steps); });
    }

    static QStringList inFolder() { return QDir(places::databaseFolder()).entryList(QDir::Files | QDir::Hidden); }

    const QString Journal = today() + "-journal";
    const QString Lock = places::earlierBackupsFolder() + "/.restoring";
    QByteArray old_;
    QByteArray today_;
};

} // namespace

TEST_F(RestoringTest, LaysTheBackupDownPutsTodaysAsideAndGoesBackAgain)
{
    const restoring::Result result = restoring::lay_Down(last());
    EXPECT_EQ(result.summary, "1 asset, $10.00");
    EXPECT_EQ(bytesOf(today()), old_);
    EXPECT_EQ(bytesOf(backupFile()), old_);
    EXPECT_EQ(QFile::permissions(today()), QFile::Permissions(0x6600));
    EXPECT_TRUE(QFile::exists(places::earlierBackupsFolder() + '/' + result.putAside + "/KTL.db"));
    EXPECT_EQ(inFolder(), QStringList("KTL.db"));
    openData(); // as the program does
    closeData();

    const restoring::Result back = restoring::lay_Down(backups::find(backups::all(), result.putAside));
    EXPECT_EQ(back.summary, "2 assets, $15.50");
    EXPECT_EQ(bytesOf(today()), today_);

    QDir(places::databaseFolder()).removeRecursively();
    EXPECT_EQ(restoring::lay_Down(last()).putAside, "") << "there was nothing";
    EXPECT_EQ(bytesOf(today()), old_);
}

TEST_F(RestoringTest, KilledAtAnyStepLeavesTodaysFileOrTheBackupAndGoesOnAfterwards)
{
    inProcess([] { // killed in the middle of a write
        openData();
        storage::execute(Data1.Home.handle(), "PRAGMA cache_size = 10"); // so that it goes to the file at once
        storage::Transaction transaction(Data1.Home.handle());
        put(Data1.rsInventory, {{Inventory::Description, QString(50'000, 'x')}});
        _exit(0);
    });
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
        EXPECT_EQ(killed, 9) << "steps without a journal of the backup's own";
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
    for (int step = 1; step <= 9; ++step) {
        SCOPED_TRACE(step);
        const auto fail = [step](int now) {
            if (now == step)
                throw values::RuntimeFailure(values::FailureKind::File, "the disk");
        };
        EXPECT_EQ(refused(fail), exit_code::Failed);
        EXPECT_EQ(everything(), before);
    }
    {
        const FullDisk full(old_.size() - 1);
        EXPECT_EQ(refused(), exit_code::Failed);
        EXPECT_EQ(everything(), before);
    }
    QDir().mkdir(today() + ".restoring-journal"); // which can't be cleared away
    EXPECT_THAT([] { restoring::lay_Down(last()); },
        testing::ThrowsMessage<Refusal>(testing::StartsWith("File failure: removing")));
}

TEST_F(RestoringTest, NeitherTheProgramNorAnotherRestoreGetsInBetween)
{
    const auto before = everything();
    {
        const sys::RunLock other(Lock);
        EXPECT_EQ(refused(), exit_code::InUse);
    }
    openData(); // as a program of another name
    EXPECT_EQ(refused(), exit_code::InUse);
    closeData();
    EXPECT_EQ(everything(), before);

    // Nobody opens the file from its putting aside to its proof.
    const auto open = [] {
        try {
            openData();
        } catch (const values::RuntimeFailure&) {
            _exit(3);
        }
    };
    restoring::lay_Down(last(), [&open](int step) { EXPECT_EQ(inProcess(open), 3) << step; });
    EXPECT_EQ(bytesOf(today()), old_);
    restoring::list_Processes = [] {
        return std::vector{sys::thisProcess(), sys::Process{1, "a Kestrill 2", "/bin/x", 7, 1}};
    };
    EXPECT_EQ(refused(), exit_code::InUse);
}

TEST_F(RestoringTest, ListsEachBackupWithWhatItHoldsAndWhyItCantBeRestored)
{
    const auto keep = [](const char* day) {
        const QString folder = places::earlierBackupsFolder() + "/2020-11-" + day + "_08-00-00";
        sys::makePrivateFolder(folder);
        return folder + "/KTL.db";
    };
    putFile(keep("20"), today_);
    putFile(keep("19"), today_);
    damage(keep("19"), static_cast<int>(today_.size() / 1024) - 1);
    putFile(keep("18"), "a letter to the insurer");
    storage::createDatabase(keep("17"), databaseKey(), databaseTables().first(6));
    storage::createDatabase(keep("16"), databaseKey(), databaseTables());
    sys::keepFile(backupFile(), keep("15")); // the last one, of a close that broke off

    const auto before = everything();
    std::vector<Backup> list = backups::all();
    QStringList told;
    for (Backup& backup : list) {
        backups::read(backup);
        told.append(backups::columnsOf(backup).join('|'));
        EXPECT_EQ(backup.isInOrder() ? exit_code::Unreadable : refusal([&] { restoring::lay_Down(backup); }),
            exit_code::Unreadable);
    }
    EXPECT_EQ(told,
        QStringList({backups::spoken(list[0].made) + "|Last close|1|$10.00|In order",
            "11/20/2020 8:00 AM|Earlier close|2|$15.50|In order", "11/19/2020 8:00 AM|Earlier close|||Damaged",
            "11/18/2020 8:00 AM|Earlier close|||Damaged or foreign",
            "11/17/2020 8:00 AM|Earlier close|||Another version",
            "11/16/2020 8:00 AM|Earlier close|||Another version"}));
    EXPECT_TRUE(list[4].reason.contains("Print"));
    EXPECT_EQ(everything(), before);

    EXPECT_EQ(backups::find(list, "2020-11-20").file, list[1].file);
    for (const char* name : {"2020-11-1" /* several */, "", "2019"})
        EXPECT_EQ(refusal([&] { backups::find(list, name); }), exit_code::Usage) << name;
}

TEST_F(RestoringTest, SaysThatThereIsNoRightToReadTheFoldersOfBackups)
{
    const auto setRights = [](mode_t rights) {
        for (const QString& folder : {places::backupFolder(), places::earlierBackupsFolder()})
            ::chmod(QFile::encodeName(folder), rights);
    };
    ::chmod(QFile::encodeName(below({})), 0711);
    setRights(0);
    const auto countClosed = [] {
        if (::getuid() == 0 && ::setuid(65534) != 0) // nothing is closed to root
            _exit(9);
        std::vector<Backup> list = backups::all();
        std::ranges::for_each(list, backups::read);
        _exit(static_cast<int>(std::ranges::count(list, "No right to read", &Backup::state)));
    };
    EXPECT_EQ(inProcess(countClosed), 2);
    setRights(S_IRWXU);
}

TEST_F(RestoringTest, TellsWhatWouldBeLost)
{
    const Household backup(backupFile());
    const Household before(today());
    EXPECT_EQ(what_Is_Lost(before, backup),
        QStringList({"1 asset entered since then would be lost.",
            "The personal information and the policy would be as before."}));
    EXPECT_EQ(what_Is_Lost(backup, before)[0], "1 asset deleted since then would come back.");
    EXPECT_EQ(what_Is_Lost(before, before), QStringList());
    openData();
    put(Data1.rsInventory, {{Inventory::Make, "Brass & Co"}});
    addNames(Data1.rsIndoor, {"Attic", "0", "0"});
    addNames(Data1.rsMobile, {"Garage", "0", "0"});
    closeData();
    const Household after(today());
    EXPECT_EQ(what_Is_Lost(after, before),
        QStringList({"1 asset changed since then would be as before.",
            "2 names added to the lists or changed since then would be lost."}));
    EXPECT_EQ(what_Is_Lost(before, after)[1], "2 names deleted from the lists or changed since then would come back.");
}
