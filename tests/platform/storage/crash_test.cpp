// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage_test.h"

#include <csignal>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// A process of its own that does `work` and is killed once it has reported so many times.
void runAndKill(int reports, const std::function<void(std::function<void()>)>& work)
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
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    close(ends[0]);
}

using CrashTest = StorageTest;

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
    wordsView.Open();
    addWord(wordsView, "kept");
    wordsView.Close();
    runAndKill(1, [this](const std::function<void()>& report) {
        wordsView.Open();
        storage::Transaction transaction(home.handle());
        wordsView.Fields(words::Word) = "lost";
        for (int i = 0; i < 200; ++i)
            addWord(wordsView, QString(50'000, 'x'));
        report();
        pause();
    });
    EXPECT_GT(files().value("data.db-journal").size(), 0);
    EXPECT_EQ(wordsInFile(), QStringList({"kept"}));
}
