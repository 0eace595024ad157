// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/processes.h"
#include "platform/system/signals.h"
#include "platform/values/failure.h"
#include "support/files.h"
#include "support/print.h"

#include <QEventLoop>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>

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

TEST(Processes, AreListedUnderTheirWholeNamesAlsoWhenTheFileIsGone)
{
    QTemporaryDir place;
    const QString program = place.filePath("a program with a long name");
    ASSERT_TRUE(QFile::copy("/bin/sleep", program));
    QProcess child;
    child.start(program, {"600"});
    ASSERT_TRUE(child.waitForStarted());
    QFile::remove(program);
    const auto processes = sys::runningProcesses();
    const auto found = std::ranges::find(processes, child.processId(), &sys::Process::pid);
    ASSERT_NE(found, processes.end());
    EXPECT_EQ(found->name, "a program with a long name");
    EXPECT_EQ(found->executable, program);
    EXPECT_EQ(found->user, getuid());
    EXPECT_GE(found->started, sys::thisProcess().started);
    child.kill();
    child.waitForFinished();
}

// Its memory is gone, and the link to its file with it, while the short name still stands in the list.
TEST(Processes, ThatAreEndingAreLeftOut)
{
    QTemporaryDir place;
    const QString own = place.filePath(QString::number(getpid()));
    for (const QString& folder : {own, place.filePath("1")})
        putFile(folder + "/stat", "1 (Name (of it)) R" + QByteArray(" 7").repeated(30));
    QFile::link("/bin/name (deleted)", own + "/exe");
    const auto processes = sys::runningProcesses(place.path());
    ASSERT_EQ(processes.size(), 1U);
    EXPECT_EQ(processes[0].executable, "/bin/name");
    EXPECT_EQ(processes[0].started, 7U);
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
}
