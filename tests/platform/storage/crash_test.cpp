// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage_test.h"

#include <csignal>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// A process of its own that does `work` and is killed once it has reported so many times, and `meanwhile` has run.
void runAndKill(
    int reports, const std::function<void(std::function<void()>)>& work, const std::function<void()>& meanwhile = [] {})
{
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const pid_t child = fork();
    if (child == 0) {
        work([&ends] { [[maybe_unused]] const auto written = write(ends[1], "x", 1); });
        pause();
        _exit(0);
    }
    close(ends[1]);
    char report = 0;
    for (int i = 0; i < reports; ++i)
        ASSERT_EQ(read(ends[0], &report, 1), 1);
    meanwhile();
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    close(ends[0]);
}

class CrashTest : public StorageTest {
protected:
    void keepAWord()
    {
        wordsView.Open();
        addWord(wordsView, "kept");
        wordsView.Close();
    }

    // A session that stores a word and is killed in the middle of a large write: its journal is left.
    void breakOff()
    {
        const auto halfWrite = [this](const std::function<void()>& report) {
            wordsView.Open();
            addWord(wordsView, "later");
            storage::Transaction transaction(home.handle());
            wordsView.Fields(words::Word) = "lost";
            for (int i = 0; i < 200; ++i)
                addWord(wordsView, QString(50'000, 'x'));
            report();
            pause();
        };
        runAndKill(1, halfWrite, [this] {
            const auto before = files().value("data.db-journal");
            EXPECT_EQ(failureOf([this] { wordsInFile(); }), values::FailureKind::Database) << "in use";
            EXPECT_TRUE(!before.isEmpty() && files().value("data.db-journal") == before);
        });
    }
};

} // namespace

TEST_F(CrashTest, AKilledProcessLosesNoRowThatWasStored)
{
    constexpr int confirmed = 25;
    runAndKill(confirmed, [this](const std::function<void()>& report) {
        wordsView.Open();
        for (int i = 0;; ++i) {
            addWord(wordsView, QString::number(i));
            report();
        }
    });
    const QStringList found = wordsInFile();
    ASSERT_GE(found.size(), confirmed);
    for (int i = 0; i < found.size(); ++i)
        EXPECT_EQ(found[i], QString::number(i));
}

TEST_F(CrashTest, WhatAKilledProcessHadHalfWrittenIsTakenBackAtTheNextOpening)
{
    keepAWord();
    breakOff();
    EXPECT_EQ(wordsInFile(), QStringList({"kept", "later"}));
    EXPECT_EQ(files().keys(), QStringList({"data.db"}));
}

TEST_F(CrashTest, ABackupLaidOverTheFileIsNotTouchedByTheJournalThatTheSessionLeft)
{
    keepAWord();
    const QByteArray backup = files().value("data.db");
    breakOff();
    const QByteArray journal = files().value("data.db-journal");
    putFile(path(), backup);
    EXPECT_EQ(wordsInFile(), QStringList({"kept"}));
    EXPECT_EQ(files().value("data.db"), backup);
    EXPECT_EQ(files().value("data.db-foreign-journal"), journal);
    EXPECT_EQ(files().size(), 2);
}
