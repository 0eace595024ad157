// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/folders.h"
#include "platform/system/processes.h"
#include "platform/system/signals.h"
#include "platform/values/failure.h"
#include "support/files.h"
#include "support/print.h"

#include <QtWidgets>

#include <unistd.h>

namespace {

// Lets the event loop answer what has arrived.
void runLoop()
{
    QEventLoop loop;
    QTimer::singleShot(0, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

// Of a process that is ending the link to its file is gone; of another user's it is kept from us.
TEST(Processes, AreToldByWhatTheSystemLetsUsSeeUnlessTheyAreEnding)
{
    QTemporaryDir place;
    const QString own = place.filePath(QString::number(getpid()));
    const auto put = [](const QString& folder, const QByteArray& status, const QByteArray& command) {
        putFile(folder + "/stat", "1 " + status + " 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19");
        putFile(folder + "/cmdline", command);
    };
    put(own, "(Name (of it)) R", "");
    QFile::link("/bin/name (deleted)", own + "/exe");
    put(place.filePath("1"), "(no link) R", "");
    const std::tuple<int, const char*, const char*> others[] = {{2, "(short) S", "/bin/short of it"},
        {3, "(just 15 letters) S", "/bin/just 15 letters and more"}, {4, "(just 15 letters) S", "another"},
        {5, "(ended) Z", "ended"}, {6, "(dead) X", "dead"}};
    for (const auto& [pid, status, command] : others) {
        put(place.filePath(QString::number(pid)), status, QByteArray(command) + QByteArray("\0-x", 3));
        putFile(place.filePath(QString("%1/exe").arg(pid)), "no link");
    }
    for (const char* odd : {"", "R 1 2 3", "(a) R 1 2 3", ")("})
        putFile(place.filePath("1%1/stat").arg(qstrlen(odd)), odd);
    QStringList told;
    for (const sys::Process& process : sys::runningProcesses(place.path()))
        told += QStringList{process.name, process.executable, QString::number(process.started),
            process.user == getuid() ? "ours" : "another's"}
                    .join(' ');
    told.sort();
    EXPECT_EQ(told.join('|'),
        "just 15 letters  19 ours|just 15 letters and more  19 ours|name /bin/name 19 ours|short  19 ours");
    QDir(own).removeRecursively();
    EXPECT_THROW(sys::runningProcesses(place.path()), values::RuntimeFailure) << "a list without this process";
}

TEST(Processes, OfTwoStartsAtOnceExactlyOneIsTheYounger)
{
    const sys::Process self{100, "p", "/bin/p", 7, 5000};
    for (const auto& younger : {sys::Process{101, "p", "/bin/p", 7, 5000}, sys::Process{3, "p", "/bin/p", 7, 5001}}) {
        EXPECT_TRUE(sys::isYoungerTwin(younger, self));
        EXPECT_FALSE(sys::isYoungerTwin(self, younger));
    }
    EXPECT_FALSE(sys::isYoungerTwin(self, self));
    EXPECT_FALSE(sys::isYoungerTwin({101, "p", "/bin/p", 8, 5001}, self)) << "another user's";
    EXPECT_FALSE(sys::isYoungerTwin({101, "p", "/opt/p", 7, 5001}, self)) << "another program";
}

TEST(Termination, RunsTheCallbackOnceFromTheEventLoopAndSparesIgnoredSignals)
{
    std::signal(SIGTERM, SIG_DFL); // a runner may have been started with it ignored
    std::signal(SIGHUP, SIG_IGN);
    int calls = 0;
    sys::onTermination([&calls] {
        if (++calls == 1)
            std::raise(SIGTERM);
    });
    std::raise(SIGHUP);
    runLoop();
    EXPECT_EQ(calls, 0) << "called for an ignored signal";
    std::raise(SIGTERM);
    EXPECT_EQ(calls, 0) << "called from the signal handler";
    for (int times = 0; times < 2; ++times)
        runLoop();
    EXPECT_EQ(calls, 1);
    sys::onTermination({});
    EXPECT_EQ(std::signal(SIGHUP, SIG_DFL), SIG_IGN);
    EXPECT_EQ(std::signal(SIGTERM, SIG_DFL), SIG_DFL) << "as it was before";
}

TEST(Folders, OfTheUsersDataDontDependOnWhereTheProgramIsStarted)
{
    const QByteArray usual = qgetenv("XDG_DATA_HOME");
    for (const auto& [folder, expected] :
        {std::pair("/data", QString("/data")), {"data", QDir::homePath() + "/.local/share"}}) {
        qputenv("XDG_DATA_HOME", folder);
        EXPECT_EQ(sys::dataFolder("K/L"), expected + "/K/L");
    }
    qputenv("XDG_DATA_HOME", usual);
    EXPECT_EQ(sys::backupFolder("B"), QDir::homePath() + "/B");
}
