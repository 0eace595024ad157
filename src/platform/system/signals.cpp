// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/signals.h"

#include "platform/system/failures.h"

#include <QGuiApplication>
#include <QPointer>
#include <QSocketNotifier>

#include <array>
#include <atomic>
#include <csignal>
#include <utility>

#include <sys/eventfd.h>
#include <unistd.h>

namespace sys {

namespace {

constexpr std::array TerminationSignals{SIGTERM, SIGINT, SIGHUP};

// The handler's end of the wire to the event loop. A handler may do next to nothing: it writes, and the loop wakes.
std::atomic<int> wire = -1;
static_assert(std::atomic<int>::is_always_lock_free);

void wakeEventLoop(int)
{
    const int reason = errno;
    const quint64 one = 1;
    [[maybe_unused]] const ssize_t written = ::write(wire, &one, sizeof one);
    errno = reason;
}

// Holds the signals as long as it lives.
class TerminationWatch : public QSocketNotifier {
public:
    TerminationWatch(int wireEnd, std::function<void()> callback, QObject* parent)
        : QSocketNotifier(wireEnd, QSocketNotifier::Read, parent)
        , callback_(std::move(callback))
    {
        wire = wireEnd;
        for (std::size_t i = 0; i < TerminationSignals.size(); ++i)
            take(TerminationSignals[i], former_[i]);
        connect(this, &QSocketNotifier::activated, this, &TerminationWatch::answer);
        if (const auto application = qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
            connect(application, &QGuiApplication::commitDataRequest, this, &TerminationWatch::answer);
    }

    ~TerminationWatch() override
    {
        setEnabled(false);
        for (std::size_t i = 0; i < TerminationSignals.size(); ++i)
            ::sigaction(TerminationSignals[i], &former_[i], nullptr);
        wire = -1;
        ::close(static_cast<int>(socket()));
    }

private:
    static void take(int signal, struct ::sigaction& former)
    {
        struct ::sigaction ours { };
        ours.sa_handler = wakeEventLoop;
        ours.sa_flags = SA_RESTART;
        ::sigaction(signal, nullptr, &former);
        if (former.sa_handler != SIG_IGN)
            ::sigaction(signal, &ours, nullptr);
    }

    void answer()
    {
        setEnabled(false);
        if (const auto callback = std::exchange(callback_, nullptr))
            callback();
    }

    std::function<void()> callback_;
    std::array<struct ::sigaction, TerminationSignals.size()> former_{};
};

} // namespace

void onTermination(std::function<void()> callback)
{
    static QPointer<TerminationWatch> watch;
    delete watch;
    if (!callback)
        return;
    const int wireEnd = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (wireEnd < 0)
        throw refusal(values::FailureKind::System, QStringLiteral("a wire for the signals that end the program"));
    watch = new TerminationWatch(wireEnd, std::move(callback), QCoreApplication::instance());
}

} // namespace sys
