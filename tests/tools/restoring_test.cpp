// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools_test.h"

#include "platform/values/failure.h"
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
    damage(backupFile());
    EXPECT_EQ(refused(), exit_code::Unreadable);
    putFile(backupFile(), old_);
    const auto refusedWith = [](const std::function<void()>& atTheLastStep) {
        try {
            restoring::lay_Down(last(), [&](int step) { step == 9 ? atTheLastStep() : void(); });
        } catch (const Refusal& refusal) {
            return refusal.words();
        }
        return QString();
    };
    EXPECT_TRUE(refusedWith([this] { putFile(today(), today_); }).endsWith(" does not hold what was laid down."));
    EXPECT_EQ(everything(), before);
    const QByteArray damaged = bytesOf(today());
    const QString words = refusedWith([] {
        QDir().mkdir(today() + ".restoring-journal"); // which can't be cleared away
        throw values::RuntimeFailure(values::FailureKind::File, "the disk");
    });
    EXPECT_TRUE(
        words.startsWith("The restore failed, and today's file could not be put back (File failure: removing "));
    EXPECT_EQ(bytesOf(words.section("It lies in ", 1).chopped(1) + "/KTL.db"), damaged);
    EXPECT_TRUE(refusedWith({}).startsWith("File failure: removing "));
}

TEST_F(RestoringTest, NobodyOpensTheFileFromItsPuttingAsideToItsProof)
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
    restoring::list_Processes = [] {
        return std::vector{sys::thisProcess(), sys::Process{1, "a Kestrill 2", "/bin/x", 7, 1}};
    };
    EXPECT_EQ(refused(), exit_code::InUse);
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
