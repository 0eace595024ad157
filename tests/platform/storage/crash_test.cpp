// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage_test.h"

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace {

class CrashTest : public StorageTest {
protected:
    CrashTest()
    {
        openWith({"kept"});
        wordsView.Close();
    }

    // A session that stores a word and is killed in the middle of a large write: its journal is left.
    void breakOff()
    {
        int ends[2];
        ASSERT_EQ(pipe(ends), 0);
        const pid_t child = fork();
        if (child == 0) {
            openWith({"later"});
            const storage::Transaction transaction(home.handle());
            wordsView.Fields(words::Word) = "lost";
            for (int i = 0; i < 200; ++i)
                addWord(wordsView, QString(50'000, 'x'));
            [[maybe_unused]] const auto told = write(ends[1], "x", 1);
            pause();
        }
        close(ends[1]);
        char told = 0;
        ASSERT_EQ(read(ends[0], &told, 1), 1);
        close(ends[0]);
        const auto before = files();
        EXPECT_EQ(failureOf([this] { wordsInFile(); }), values::FailureKind::Database) << "in use";
        EXPECT_TRUE(!before.value("data?.db-journal").isEmpty() && files() == before);
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
    }
};

} // namespace

TEST_F(CrashTest, WhatAKilledProcessHadHalfWrittenIsTakenBackAtTheNextOpening)
{
    breakOff();
    EXPECT_EQ(wordsInFile(), QStringList({"kept", "later"}));
    EXPECT_EQ(files().keys(), QStringList({"data?.db"}));
}

TEST_F(CrashTest, ABackupLaidOverTheFileIsNotTouchedByTheJournalThatTheSessionLeft)
{
    const QByteArray backup = bytesOf(path());
    breakOff();
    const QByteArray journal = bytesOf(path() + "-journal");
    putFile(path(), backup);
    EXPECT_EQ(wordsInFile(), QStringList({"kept"}));
    EXPECT_EQ(files(), (QMap<QString, QByteArray>{{"data?.db", backup}, {"data?.db-foreign-journal", journal}}));
}
