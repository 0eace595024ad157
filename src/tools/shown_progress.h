// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/report/progress.h"

#include <QWidget>

#include <algorithm>
#include <functional>

/// How far a long step of a command is, shown in a window with a button to cancel it. No other window takes input.
class ShownProgress {
public:
    ShownProgress(const QString& words, QWidget* window)
        : window_(words, Percent, window)
    {
    }

    /// The progress to be told.
    std::function<bool(int done, int all)> told()
    {
        return [progress = window_.progress()](
                   int done, int all) { return progress(static_cast<int>(qint64{done} * Percent / std::max(all, 1))); };
    }

private:
    static constexpr int Percent = 100;

    report::ProgressWindow window_;
};
