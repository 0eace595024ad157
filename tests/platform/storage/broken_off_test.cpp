// SPDX-License-Identifier: GPL-3.0-or-later
// Writes that are refused, that fail in their midst, and that the end of the process breaks off.
#include "storage_test.h"

#include <cerrno>
#include <limits>

#include <sys/syscall.h>

using values::FailureKind;

namespace {

// The disk as the engine sees it: after so many changes every write, sync, cut and removal fails.
constexpr int never = std::numeric_limits<int>::max();
int changesLeft = never; // below 0 when one has failed

template <class... Arguments>
long change(long number, Arguments... arguments)
{
    if (changesLeft != never && changesLeft >= 0)
        --changesLeft;
    if (changesLeft >= 0)
        return ::syscall(number, arguments...);
    errno = ENOSPC;
    return -1;
}

using FailedWriteTest = StorageTest;

TEST_F(FailedWriteTest, AFullDiskLeavesViewAndFileAsTheyWereAndTheNextWriteWorks)
{
    openWith({"a"});
    {
        const FullDisk full(16'384);
        EXPECT_THAT([this] { addWord(wordsView, QString(200'000, 'x')); },
            testing::ThrowsMessage<values::RuntimeFailure>(testing::HasSubstr("(File too large)")));
    }
    EXPECT_EQ(walk(wordsView), QStringList({"a"}));
    addWord(wordsView, "b");
    wordsView.Close();
    EXPECT_EQ(wordsInFile(), QStringList({"a", "b"}));
}

// Where the journal is there already, the folder is not the reason.
TEST_F(FailedWriteTest, AFolderThatTakesNoNewFileIsToldAsOne)
{
    QFile::setPermissions(path(), QFile::Permissions(0x6666));
    const uid_t user = geteuid();
    for (const char* reason : {"(Permission denied)", "(File too large)"}) {
        wordsView.Open();
        const bool isFull = QByteArray(reason) == "(File too large)";
        if (isFull)
            addWord(wordsView, "a");
        for (const QString& each : {folder.path(), place.path()})
            QFile::setPermissions(each, QFile::Permissions(0x5555));
        ASSERT_EQ(seteuid(user == 0 ? 65534 : user), 0) << "nothing is forbidden to root";
        {
            const FullDisk full(isFull ? 16'384 : 1 << 24);
            EXPECT_THAT([this] { addWord(wordsView, QString(200'000, 'x')); },
                testing::ThrowsMessage<values::RuntimeFailure>(testing::HasSubstr(reason)));
        }
        wordsView.Close();
        ASSERT_EQ(seteuid(user), 0);
        for (const QString& each : {place.path(), folder.path()})
            QFile::setPermissions(each, QFile::Permissions(0x7700));
    }
}

// How a session can end whose last save has failed. An end that settles the file does it or tells that it couldn't.
struct End {
    const char* name;
    void (*run)(storage::Connection& home, storage::TableView& view, int outcome);
    bool settles = false;
    bool onWorkingDisk = false;
};

const End ends[] = {
    {"closed", [](storage::Connection& home, storage::TableView&, int) { home.close(); }, true},
    {"closed by its last view", [](storage::Connection&, storage::TableView& view, int) { view.Close(); }, true},
    {"closed on a disk that works again",
        [](storage::Connection& home, storage::TableView&, int) {
            changesLeft = never;
            home.close();
        },
        true, true},
    {"destroyed", [](storage::Connection&, storage::TableView&, int) {}},
    {"killed", [](storage::Connection&, storage::TableView&, int outcome) { _exit(outcome); }},
};

enum Outcome { Saved = 1, FaultMet = 2, CloseTold = 4 };

class FailingSave : public StorageTest {
protected:
    int session(int changes, const End& end) const
    {
        storage::Connection session;
        session.setFile(path(), key);
        storage::TableView view(session, words::table);
        view.Open();
        changesLeft = changes;
        const bool isSaved = !failureOf([&] { addWord(view, QString(3000, 'c')); });
        const int outcome = (isSaved ? Saved : 0) | (changesLeft < 0 ? FaultMet : 0);
        return outcome | (failureOf([&] { end.run(session, view, outcome); }) ? CloseTold : 0);
    }
};

// From the first change on that a save makes to the disk all changes fail, those of its roll-back too; from the second
// on; and so forth.
TEST_F(FailingSave, LosesNoStoredRowWhereverItBreaksOffAndHoweverTheSessionEnds)
{
    openWith({"a", QString(5000, 'b')});
    wordsView.Close();
    const QByteArray before = bytesOf(path());
    int journalsLeft = 0;
    int changes = 0;
    for (bool faultMet = true; faultMet; ++changes) {
        faultMet = false;
        for (const End& end : ends) {
            SCOPED_TRACE(testing::Message() << "from change " << changes + 1 << " on, " << end.name);
            // In a process of its own: an end that forgets something can't be mended by this one.
            const int outcome = inProcess([&] { _exit(session(changes, end)); });
            faultMet |= (outcome & FaultMet) != 0;
            journalsLeft += QFileInfo(path() + "-journal").size() > 0;
            if (end.settles && !(outcome & CloseTold))
                QFile::remove(path() + "-journal"); // the file is said to be whole without it
            EXPECT_FALSE(end.onWorkingDisk && (outcome & CloseTold));
            QStringList found = wordsInFile();
            if (!(outcome & Saved) && found.size() == 3)
                found.removeLast(); // stored without being confirmed
            EXPECT_EQ(found.size(), outcome & Saved ? 3 : 2);
            EXPECT_EQ(found.first(2), QStringList({"a", QString(5000, 'b')}));
            EXPECT_FALSE(failureOf([this] { storage::checkDatabase(path(), key); }));
            putFile(path(), before);
        }
    }
    EXPECT_GT(changes, 5);
    EXPECT_GT(journalsLeft, 5);
}

// ---- a session that is killed

// The session stores a word and is killed in the middle of a large write: its journal is left.
TEST_F(FailedWriteTest, ABackupLaidOverTheFileIsNotTouchedByTheJournalOfASessionThatWasKilled)
{
    openWith({"kept"});
    wordsView.Close();
    const QByteArray backup = bytesOf(path());
    const pid_t child = fork();
    if (child == 0) {
        openWith({"later"});
        const storage::Transaction transaction(home.handle());
        wordsView.Fields(words::Word) = "lost";
        for (int i = 0; i < 200; ++i)
            addWord(wordsView, QString(50'000, 'x'));
        std::raise(SIGSTOP);
    }
    waitpid(child, nullptr, WUNTRACED);
    const auto before = files();
    const std::string journal = before.at("data?.db-journal");
    EXPECT_EQ(failureOf([this] { wordsInFile(); }), FailureKind::Database) << "in use";
    EXPECT_TRUE(!journal.empty() && files() == before);
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    putFile(path(), backup);
    const auto expectRefusal = [this](const char* words) {
        EXPECT_THAT(
            [this] { wordsInFile(); }, testing::ThrowsMessage<values::RuntimeFailure>(testing::HasSubstr(words)));
    };
    {
        const FullDisk full(1000);
        expectRefusal("no room to try the journal of ");
    }
    const QString aside = path() + "-foreign-journal";
    QDir().mkdir(aside);
    expectRefusal("a foreign journal lies beside ");
    QDir().rmdir(aside);
    EXPECT_EQ(wordsInFile(), QStringList({"kept"}));
    EXPECT_EQ(files(),
        (std::map<std::string, std::string>{
            {"data?.db", backup.toStdString()}, {"data?.db-foreign-journal", journal}}));
}

} // namespace

// These stand before the system's own, for the engine too.
ssize_t pwrite64(int file, const void* bytes, size_t count, off64_t at)
{
    return change(SYS_pwrite64, file, bytes, count, at);
}

int ftruncate64(int file, off64_t size) noexcept
{
    return static_cast<int>(change(SYS_ftruncate, file, size));
}

int fdatasync(int file)
{
    return static_cast<int>(change(SYS_fdatasync, file));
}

int unlink(const char* path) noexcept
{
    return static_cast<int>(change(SYS_unlink, path));
}
