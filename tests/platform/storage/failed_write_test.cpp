// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage_test.h"

#include <csignal>
#include <functional>
#include <sys/resource.h>

using values::FailureKind;

namespace {

using FailedWriteTest = StorageTest;

} // namespace

TEST_F(FailedWriteTest, AChangeThatIsRefusedIsDropped)
{
    wordsView.Open();
    addWord(wordsView, "a");
    addWord(wordsView, "b");
    const std::pair<const char*, std::function<void()>> changes[] = {
        {"UPDATE",
            [this] {
                wordsView.Fields(words::Word) = "changed";
                wordsView.MoveNext();
            }},
        {"INSERT", [this] { addWord(wordsView, "c"); }},
        {"DELETE", [this] { wordsView.Delete(); }},
    };
    for (const auto& [statement, change] : changes) {
        wordsView.Close();
        const QByteArray name = statement;
        runOnFile("CREATE TRIGGER no" + name + " BEFORE " + name + " ON Words BEGIN SELECT RAISE(ABORT, 'no'); END");
        wordsView.Open();
        EXPECT_EQ(failureOf(change), FailureKind::Database) << statement;
        EXPECT_EQ(wordsView.Fields(words::Word), "a") << "the row before is current: " << statement;
        EXPECT_EQ(walk(wordsView), QStringList({"a", "b"})) << statement;
    }
}

TEST_F(FailedWriteTest, AFullDiskLeavesViewAndFileAsTheyWereAndTheNextWriteWorks)
{
    wordsView.Open();
    addWord(wordsView, "a");
    wordsView.AddNew();
    wordsView.Fields(words::Word) = QString(200'000, 'x');
    std::signal(SIGXFSZ, SIG_IGN); // a file that can't grow is to the writer a disk that is full
    rlimit former{};
    getrlimit(RLIMIT_FSIZE, &former);
    const rlimit full{16'384, former.rlim_max};
    setrlimit(RLIMIT_FSIZE, &full);
    const auto failure = failureOf([this] { wordsView.Update(); });
    setrlimit(RLIMIT_FSIZE, &former);
    EXPECT_EQ(failure, FailureKind::Database);
    EXPECT_EQ(walk(wordsView), QStringList({"a"}));
    addWord(wordsView, "b");
    wordsView.Close();
    EXPECT_EQ(wordsInFile(), QStringList({"a", "b"}));
}
