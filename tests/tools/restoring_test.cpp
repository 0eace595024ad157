// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools_test.h"

#include "platform/storage/schema.h"
#include "platform/values/failure.h"
#include "tools/comparison.h"
#include "tools/household.h"

using testing::HasSubstr;

namespace {

class RestoringTest : public ToolsTest {
protected:
    // A backup with one asset; today's file has a second one.
    void SetUp() override
    {
        ToolsTest::SetUp();
        addAsset("Lamp", "$10.00");
        backUp();
        old_ = contentsOf(backupFile());
        addAsset("Chair", "$5.50");
        today_ = contentsOf(places::databaseFile());
    }

    static Backup last() { return backups::find(backups::all(), "last"); }

    static QString journal() { return places::databaseFile() + "-journal"; }

    // A run that is killed in the middle of a write.
    static void breakOff()
    {
        inProcess([] {
            DataStore store;
            store.Home.open(places::databaseFile(), databaseKey());
            store.rsInventory.Open();
            storage::execute(store.Home.handle(), "PRAGMA cache_size = 10"); // so that it goes to the file at once
            storage::Transaction transaction(store.Home.handle());
            store.rsInventory.Fields(Inventory::Description) = QString(50'000, 'x');
            store.rsInventory.Update();
            _exit(0);
        });
        ASSERT_GT(QFileInfo(journal()).size(), 0);
    }

    static QStringList remains()
    {
        QStringList names = QDir(places::databaseFolder()).entryList(QDir::Files | QDir::Hidden);
        names.removeAll("KTL.db");
        return names;
    }

    static QStringList putAside()
    {
        QStringList names;
        for (const Backup& backup : backups::all())
            if (backup.kind == "Put aside")
                names.append(backup.name);
        return names;
    }

    QByteArray old_;
    QByteArray today_;
};

} // namespace

TEST_F(RestoringTest, LaysTheBackupDownPutsTodaysAsideAndGoesBackAgain)
{
    const restoring::Result result = restoring::lay_Down(last());
    EXPECT_EQ(result.summary, "1 asset, $10.00");
    EXPECT_EQ(contentsOf(places::databaseFile()), old_);
    EXPECT_EQ(contentsOf(backupFile()), old_);
    EXPECT_EQ(QFile::permissions(places::databaseFile()), QFile::Permissions(0x6600));
    EXPECT_EQ(putAside(), QStringList(result.putAside));
    EXPECT_EQ(remains(), QStringList());
    openData(); // as the program does
    closeData();

    const restoring::Result back = restoring::lay_Down(backups::find(backups::all(), result.putAside));
    EXPECT_EQ(back.summary, "2 assets, $15.50");
    EXPECT_EQ(contentsOf(places::databaseFile()), today_);
    EXPECT_EQ(putAside().size(), 2);

    QDir(places::databaseFolder()).removeRecursively();
    EXPECT_EQ(restoring::lay_Down(last()).putAside, "") << "there was nothing";
    EXPECT_EQ(contentsOf(places::databaseFile()), old_);
}

TEST_F(RestoringTest, KilledAtAnyStepLeavesTodaysFileOrTheBackupAndGoesOnAfterwards)
{
    breakOff();
    const QByteArray brokenOff = contentsOf(places::databaseFile());
    const QByteArray itsJournal = contentsOf(journal());
    for (const bool isDamaged : {false, true}) {
        int killed = 0;
        for (int step = 1; step <= restoring::StepCount; ++step) {
            SCOPED_TRACE(step);
            put(places::databaseFile(), brokenOff);
            put(journal(), itsJournal);
            if (isDamaged)
                damage(places::databaseFile());
            const QByteArray before = contentsOf(places::databaseFile());
            killed += inProcess([step] {
                restoring::lay_Down(last(), [step](int now) {
                    if (now == step)
                        _exit(1);
                });
            });
            if (contentsOf(places::databaseFile()) == old_)
                EXPECT_FALSE(QFile::exists(journal())) << "which would destroy the backup";
            else if (isDamaged)
                EXPECT_EQ(contentsOf(places::databaseFile()), before);
            else
                EXPECT_EQ(Household(places::databaseFile()).summary(), "2 assets, $15.50");
            if (step % 4 != 0)
                continue;
            restoring::lay_Down(last());
            EXPECT_EQ(contentsOf(places::databaseFile()), old_);
            EXPECT_EQ(remains(), QStringList());
        }
        EXPECT_EQ(killed, 9) << "steps without a journal of the backup's own";
        if (isDamaged) {
            const QString aside = places::earlierBackupsFolder() + '/' + putAside().first() + "/KTL.db";
            EXPECT_EQ(contentsOf(aside + "-journal"), itsJournal) << "goes with its file";
        }
    }
}

TEST_F(RestoringTest, AFailureAtAnyStepLeavesTodaysFileWithItsJournal)
{
    damage(places::databaseFile());
    put(journal(), QByteArray(2000, 'j'));
    const QByteArray before = contentsOf(places::databaseFile());
    for (int step = 1; step <= 9; ++step) {
        SCOPED_TRACE(step);
        const auto fail = [step](int now) {
            if (now == step)
                throw values::RuntimeFailure(values::FailureKind::File, "the disk");
        };
        EXPECT_EQ(refusal([&] { restoring::lay_Down(last(), fail); }), exit_code::Failed);
        EXPECT_EQ(contentsOf(places::databaseFile()), before);
        EXPECT_EQ(contentsOf(journal()), QByteArray(2000, 'j'));
        EXPECT_EQ(remains(), QStringList("KTL.db-journal"));
        EXPECT_EQ(putAside(), QStringList());
    }
    const FullDisk full(static_cast<rlim_t>(old_.size() - 1));
    EXPECT_EQ(refusal([] { restoring::lay_Down(last()); }), exit_code::Failed);
    EXPECT_EQ(contentsOf(places::databaseFile()), before);
    EXPECT_EQ(remains(), QStringList("KTL.db-journal"));
}

TEST_F(RestoringTest, NeitherTheProgramNorAnotherRestoreGetsInBetween)
{
    const auto alone = std::exchange(restoring::list_Processes, [] {
        return std::vector{sys::thisProcess(), sys::Process{1, "a Kestrill 2", "/bin/x", 7, 1}};
    });
    EXPECT_EQ(refusal([] { restoring::lay_Down(last()); }), exit_code::InUse);
    restoring::list_Processes = alone;
    sys::makePrivateFolder(places::earlierBackupsFolder());
    {
        const sys::RunLock other(places::earlierBackupsFolder() + "/.restoring");
        EXPECT_EQ(refusal([] { restoring::lay_Down(last()); }), exit_code::InUse);
    }
    // A process of another name has the file open.
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const pid_t other = fork();
    if (other == 0) {
        storage::Connection connection;
        connection.open(places::databaseFile(), databaseKey());
        [[maybe_unused]] const auto told = write(ends[1], "x", 1);
        pause();
        _exit(0);
    }
    char told = 0;
    ASSERT_EQ(read(ends[0], &told, 1), 1);
    EXPECT_EQ(refusal([] { restoring::lay_Down(last()); }), exit_code::InUse);
    kill(other, SIGKILL);
    waitpid(other, nullptr, 0);
    EXPECT_EQ(contentsOf(places::databaseFile()), today_);

    // Nobody opens the file from its putting aside to its proof.
    const auto open = [] {
        try {
            storage::Connection connection;
            connection.open(places::databaseFile(), databaseKey());
        } catch (const values::RuntimeFailure&) {
            _exit(3);
        }
    };
    restoring::lay_Down(last(), [&open](int step) { EXPECT_EQ(inProcess(open), 3) << step; });
    EXPECT_EQ(contentsOf(places::databaseFile()), old_);
}

TEST_F(RestoringTest, ListsEachBackupWithWhatItHoldsAndWhyItCantBeRestored)
{
    const auto keep = [](const char* name) {
        const QString folder = places::earlierBackupsFolder() + '/' + name;
        sys::makePrivateFolder(folder);
        return folder + "/KTL.db";
    };
    QFile::copy(places::databaseFile(), keep("2020-11-20_08-00-00"));
    QFile::copy(places::databaseFile(), keep("2020-11-19_08-00-00"));
    damage(keep("2020-11-19_08-00-00"), 40);
    put(keep("2020-11-18_08-00-00"), "a letter to the insurer");
    storage::createDatabase(keep("2020-11-17_08-00-00"), databaseKey(), databaseTables().first(6));
    storage::createDatabase(keep("2020-11-16_08-00-00"), databaseKey(), databaseTables());
    sys::keepFile(backupFile(), keep("2020-11-15_08-00-00")); // the last one, of a close that broke off

    std::vector<Backup> list = backups::all();
    QStringList told;
    for (Backup& backup : list) {
        backups::read(backup);
        told.append(backups::columnsOf(backup).join('|'));
    }
    EXPECT_EQ(told.takeFirst(), backups::spoken(list[0].made) + "|Last close|1|$10.00|In order");
    EXPECT_EQ(told,
        QStringList({"11/20/2020 8:00 AM|Earlier close|2|$15.50|In order", "11/19/2020 8:00 AM|Earlier close|||Damaged",
            "11/18/2020 8:00 AM|Earlier close|||Damaged or foreign",
            "11/17/2020 8:00 AM|Earlier close|||Another version",
            "11/16/2020 8:00 AM|Earlier close|||Another version"}));
    EXPECT_THAT(list[4].reason.toStdString(), HasSubstr("Print"));
    for (std::size_t i = 2; i < list.size(); ++i)
        EXPECT_EQ(refusal([&] { restoring::lay_Down(list[i]); }), exit_code::Unreadable) << list[i].name.toStdString();
    EXPECT_EQ(contentsOf(places::databaseFile()), today_);
    EXPECT_EQ(remains(), QStringList());

    EXPECT_EQ(backups::find(list, "2020-11-20").file, list[1].file);
    EXPECT_EQ(refusal([&] { backups::find(list, "2020-11-1"); }), exit_code::Usage) << "several";
    EXPECT_EQ(refusal([&] { backups::find(list, ""); }), exit_code::Usage);
    EXPECT_EQ(refusal([&] { backups::find(list, "2019"); }), exit_code::Usage);
}

TEST_F(RestoringTest, TellsWhatWouldBeLost)
{
    const Household backup(backupFile());
    const Household today(places::databaseFile());
    EXPECT_EQ(what_Is_Lost(today, backup),
        QStringList({"1 asset entered since then would be lost.",
            "The personal information and the policy would be as before."}));
    EXPECT_EQ(what_Is_Lost(backup, today)[0], "1 asset deleted since then would come back.");
    EXPECT_EQ(what_Is_Lost(today, today), QStringList());
    {
        DataStore store;
        store.Home.open(places::databaseFile(), databaseKey());
        store.rsInventory.Open();
        store.rsInventory.Fields(Inventory::Make) = "Brass & Co";
        store.rsInventory.Update();
        store.rsIndoor.Open();
        store.rsIndoor.Fields(Names::Type) = "Stool";
        store.rsIndoor.Update();
    }
    EXPECT_EQ(what_Is_Lost(Household(places::databaseFile()), today),
        QStringList({"1 asset changed since then would be as before.",
            "1 name added to the lists or changed since then would be lost."}));
}
