// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/processes.h"

#include "support/print.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

#include <sys/wait.h>
#include <unistd.h>

namespace {

std::optional<sys::Process> find(const std::vector<sys::Process>& processes, qint64 pid)
{
    const auto found = std::find_if(processes.begin(), processes.end(), [pid](const auto& p) { return p.pid == pid; });
    return found == processes.end() ? std::nullopt : std::optional(*found);
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
    const auto found = find(sys::runningProcesses(), child.processId());
    ASSERT_TRUE(found);
    EXPECT_EQ(found->name, "a program with a long name");
    EXPECT_EQ(found->executable, program);
    EXPECT_EQ(found->user, getuid());
    EXPECT_GE(found->started, sys::thisProcess().started);
    child.kill();
    child.waitForFinished();
}

TEST(Processes, OfTwoStartsAtOnceExactlyOneIsTheYounger)
{
    const sys::Process self{100, "p", "/bin/p", 7, 5000};
    const sys::Process laterPid{101, "p", "/bin/p", 7, 5000};
    const sys::Process laterStart{3, "p", "/bin/p", 7, 5001};
    for (const auto& younger : {laterPid, laterStart}) {
        EXPECT_TRUE(sys::isYoungerTwin(younger, self));
        EXPECT_FALSE(sys::isYoungerTwin(self, younger));
    }
    EXPECT_FALSE(sys::isYoungerTwin(self, self));
    EXPECT_FALSE(sys::isYoungerTwin({101, "p", "/bin/p", 8, 5001}, self)) << "another user's";
    EXPECT_FALSE(sys::isYoungerTwin({101, "p", "/opt/p", 7, 5001}, self)) << "another program";
}
