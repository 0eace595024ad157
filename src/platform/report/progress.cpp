// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/progress.h"

#include "platform/report/patience.h"

namespace report {

ProgressWindow::ProgressWindow(const QString& words, int pages, QWidget* window)
    : dialog_(makeProgressDialog(words, pages, window))
{
    dialog_->setObjectName(QStringLiteral("reportProgress"));
    dialog_->setMinimumDuration(patienceMilliseconds);
    dialog_->setValue(0);
}

Progress ProgressWindow::progress()
{
    return [this](int done) {
        if (dialog_)
            dialog_->setValue(done);
        return dialog_ && !dialog_->wasCanceled();
    };
}

} // namespace report
