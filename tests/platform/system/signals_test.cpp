// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/signals.h"

#include <QEventLoop>
#include <QTimer>

#include <gtest/gtest.h>

#include <csignal>

namespace {

// Lets the event loop answer what has arrived.
void runLoop()
{
    QEventLoop loop;
    QTimer::singleShot(0, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

TEST(Termination, RunsTheCallbackOnceFromTheEventLoopAndSparesIgnoredSignals)
{
    std::signal(SIGTERM, SIG_DFL); // a runner may have been started with it ignored
    std::signal(SIGHUP, SIG_IGN);
    int calls = 0;
    sys::onTermination([&calls] {
        if (++calls > 1)
            return;
        std::raise(SIGTERM);
        runLoop();
    });
    std::raise(SIGHUP);
    runLoop();
    EXPECT_EQ(calls, 0) << "called for an ignored signal";
    std::raise(SIGTERM);
    EXPECT_EQ(calls, 0) << "called from the signal handler";
    runLoop();
    std::raise(SIGTERM);
    runLoop();
    EXPECT_EQ(calls, 1);
    sys::onTermination({});
    EXPECT_EQ(std::signal(SIGHUP, SIG_DFL), SIG_IGN);
}
