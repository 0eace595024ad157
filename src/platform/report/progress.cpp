// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/progress.h"

namespace report {

namespace {

constexpr int patienceMilliseconds = 500;

} // namespace

ProgressWindow::ProgressWindow(const QString& words, int pages, QWidget* window)
    : dialog_(words, QStringLiteral("Cancel"), 0, pages, window)
{
    dialog_.setObjectName(QStringLiteral("reportProgress"));
    dialog_.setWindowTitle(window->windowTitle());
    dialog_.setWindowModality(Qt::ApplicationModal);
    dialog_.setMinimumDuration(patienceMilliseconds);
    dialog_.setValue(0);
}

Progress ProgressWindow::progress()
{
    return [this](int done) {
        dialog_.setValue(done);
        return !dialog_.wasCanceled();
    };
}

} // namespace report
