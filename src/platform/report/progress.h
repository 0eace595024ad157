// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QProgressDialog>
#include <QString>

#include <functional>

namespace report {

/// How a run over many pages came out. NothingChosen: the report has none of the pages that were asked for. Unanswered:
/// it was handed on, and whether it was taken isn't known.
enum class Outcome { Done, Cancelled, NothingChosen, Unanswered, Failed };

/// Told before each page how many are done; false cancels the run.
using Progress = std::function<bool(int done)>;

/// Shows how far a run is, once it takes longer than a moment, and has a button to cancel it. No other window of the
/// program takes input meanwhile.
class ProgressWindow {
public:
    ProgressWindow(const QString& words, int pages, QWidget* window);
    ~ProgressWindow() { delete dialog_; }
    ProgressWindow(const ProgressWindow&) = delete;
    ProgressWindow& operator=(const ProgressWindow&) = delete;

    /// The progress to be told. The run is cancelled where the window is gone.
    Progress progress();

private:
    QPointer<QProgressDialog> dialog_; // which the window may take along
};

} // namespace report
