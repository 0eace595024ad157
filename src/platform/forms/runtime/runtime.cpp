// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/runtime/runtime.h"

#include "platform/forms/runtime/boundary.h"
#include "platform/forms/runtime/event.h"

#include <QApplication>
#include <QThread>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <vector>

namespace forms {

namespace {

struct Runtime {
    int toolkitCalls = 0;
    int frames = 0;
    int loop = 0; // level of the event loop that has called the innermost handler
    bool ending = false;
    std::exception_ptr failed; // which left a handler last
    QString failedHandler;
    std::vector<std::function<void()>> cleanUps;
    std::function<void()> frameEnded;
    std::function<void()> frameReturned;
    std::function<void()> handlerReturn;
    std::function<void(int)> ender;
    std::function<void(const FailureReport&)> reporter;
    std::function<void(int, const QString&)> helpHandler;
    std::function<void(const FailureReport&, const QString&, const QString&)> reportBox;
    QString title;
    std::function<QString()> closingWords;
};

Runtime& runtime()
{
    static Runtime instance;
    return instance;
}

void cleanUp()
{
    for (const auto& step : std::exchange(runtime().cleanUps, {}))
        step();
}

[[noreturn]] void leave(int status)
{
    std::fflush(nullptr);
    // Not exit(): static objects would be destroyed while widgets and nested event loops still use them.
    std::_Exit(status);
}

void showReport(const FailureReport& report)
{
    const Runtime& state = runtime();
    if (state.reportBox)
        state.reportBox(report, state.title, state.closingWords ? state.closingWords() : QString());
}

// The name belongs to one exception: another that was caught in silence gives its name to nobody.
QString handlerOf(const std::exception_ptr& failed)
{
    return runtime().failed == failed ? runtime().failedHandler : QString();
}

void report(const QString& failure, std::optional<values::FailureKind> kind = {})
{
    Runtime& state = runtime();
    const FailureReport what{handlerOf(std::current_exception()), failure, kind};
    if (state.reporter) {
        state.reporter(what);
        return;
    }
    state.ending = true;
    cleanUp();
    std::fprintf(stderr, "%s: %s\n", qUtf8Printable(what.handler), qUtf8Printable(what.failure));
    showReport(what);
    leave(1);
}

} // namespace

ToolkitCall::ToolkitCall()
{
    ++runtime().toolkitCalls;
}

ToolkitCall::~ToolkitCall()
{
    --runtime().toolkitCalls;
}

bool insideToolkitCall()
{
    return runtime().toolkitCalls > 0;
}

bool isEnding()
{
    return runtime().ending;
}

bool handlerRuns()
{
    return runtime().frames > 0;
}

bool loopWaitsForHandler()
{
    return handlerRuns() && runtime().loop == QThread::currentThread()->loopLevel();
}

HandlerFrame::HandlerFrame()
    : toolkitCalls_(std::exchange(runtime().toolkitCalls, 0))
    , loop_(std::exchange(runtime().loop, QThread::currentThread()->loopLevel()))
{
    ++runtime().frames;
}

HandlerFrame::~HandlerFrame()
{
    --runtime().frames;
    runtime().toolkitCalls = toolkitCalls_;
    runtime().loop = loop_;
    if (runtime().frameEnded)
        runtime().frameEnded();
}

void HandlerFrame::finish()
{
    if (runtime().frames > 1)
        return;
    if (runtime().frameReturned)
        runtime().frameReturned();
    if (runtime().handlerReturn)
        runtime().handlerReturn();
}

void setFrameSteps(std::function<void()> ended, std::function<void()> returned)
{
    runtime().frameEnded = std::move(ended);
    runtime().frameReturned = std::move(returned);
}

void reportCurrentException() noexcept
{
    try {
        throw;
    } catch (const ProcessEnd&) {
        // A test stands in for the end of the process.
    } catch (const values::RuntimeFailure& failure) {
        report(failure.text(), failure.kind());
    } catch (const std::exception& failure) {
        report(QString::fromUtf8(failure.what()));
    } catch (...) {
        report(QStringLiteral("Unknown failure"));
    }
}

void detail::failedIn(const QString& owner, const char* event)
{
    std::exception_ptr failed = std::current_exception();
    if (failed == runtime().failed)
        return;
    runtime().failed = std::move(failed);
    runtime().failedHandler = owner + QLatin1Char('_') + QLatin1String(event);
}

void detail::assignedTwice(const QString& owner, const char* event)
{
    qFatal("%s_%s has a handler already", qPrintable(owner), event);
}

void endProcess(int status)
{
    if (runtime().ender) {
        runtime().ender(status);
        std::abort();
    }
    runtime().ending = true;
    cleanUp();
    leave(status);
}

void onEnd(std::function<void()> step)
{
    runtime().cleanUps.push_back(std::move(step));
}

void onHandlerReturn(std::function<void()> step)
{
    runtime().handlerReturn = std::move(step);
}

void setProcessEnder(std::function<void(int)> ender)
{
    runtime().ender = std::move(ender);
}

void setFailureReporter(std::function<void(const FailureReport&)> reporter)
{
    runtime().reporter = std::move(reporter);
}

void setReportBox(std::function<void(const FailureReport&, const QString&, const QString&)> show)
{
    runtime().reportBox = std::move(show);
}

void setReportWords(const QString& title, std::function<QString()> closingWords)
{
    runtime().title = title;
    runtime().closingWords = std::move(closingWords);
}

void setHelpHandler(std::function<void(int, const QString&)> handler)
{
    runtime().helpHandler = std::move(handler);
}

void openHelp(int number, const QString& window)
{
    if (runtime().helpHandler)
        runtime().helpHandler(number, window);
}

void runAsHandler(const QString& name, const std::function<void()>& handler)
{
    if (insideToolkitCall()) {
        // The layer waits for the toolkit inside a handler: the function has to come after it, not into it.
        QTimer::singleShot(10, [name, handler] { runAsHandler(name, handler); });
        return;
    }
    fromToolkit([&] { runHandler(name, "Event", handler); });
}

WaitPointer::WaitPointer()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

WaitPointer::~WaitPointer()
{
    QApplication::restoreOverrideCursor();
}

} // namespace forms
