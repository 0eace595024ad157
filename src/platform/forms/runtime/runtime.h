// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/values/failure.h"

#include <QString>

#include <functional>
#include <optional>

namespace forms {

/// Ends the process at once, without unwinding: runs the clean-up of onEnd() first.
[[noreturn]] void endProcess(int status);

/// What runs before the process ends, by endProcess() or by an uncaught failure. It must not throw.
void onEnd(std::function<void()> cleanUp);

/// What runs each time that the outermost handler has returned. A failure in it counts as the handler's.
void onHandlerReturn(std::function<void()> step);

/// What a test's process ender throws. It passes through the handlers and ends at the toolkit's boundary, silently.
struct ProcessEnd {
    int status = 0;
};

/// Takes the place of the end of the process, for tests. The function must not return: it throws ProcessEnd.
void setProcessEnder(std::function<void(int status)> ender);

/// What an uncaught failure says.
struct FailureReport {
    QString handler; ///< "frmAddUpDel.cmdAdd_Click"
    QString failure; ///< the failure's own text
    std::optional<values::FailureKind> kind; ///< nothing for a failure of another sort
};

/// Takes the place of the run-time report and of the end of the process that follows it, for tests.
void setFailureReporter(std::function<void(const FailureReport&)> reporter);

/// The box that shows the run-time report. Without one the report goes to the error output alone.
void setReportBox(std::function<void(const FailureReport&, const QString& title, const QString& closingWords)> show);

/// Title of the run-time report's box, and its closing words, which are asked for once the clean-up of onEnd() has run.
void setReportWords(const QString& title, std::function<QString()> closingWords);

/// What F1 calls, with the number of the focused control's topic; where that is 0, the name of the
/// window tells what help is wanted for.
void setHelpHandler(std::function<void(int number, const QString& window)> handler);

/// Calls it, for windows that are no screens.
void openHelp(int number, const QString& window);

/// Runs a function that the toolkit calls (a signal, a notifier) as a handler: an uncaught failure ends the process
/// with the report and never passes through the toolkit.
void runAsHandler(const QString& name, const std::function<void()>& handler);

/// Shows the wait pointer over the whole program for as long as the object lives.
class WaitPointer {
public:
    WaitPointer();
    ~WaitPointer();
    WaitPointer(const WaitPointer&) = delete;
    WaitPointer& operator=(const WaitPointer&) = delete;
};

} // namespace forms
