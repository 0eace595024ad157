// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/patience.h"

#include "platform/forms/look.h"

#include <QPointer>
#include <QProgressDialog>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <future>
#include <thread>

namespace report {

namespace {

constexpr int lookMilliseconds = 50;

bool isThere(const std::future<int>& answer, int milliseconds = 0)
{
    return answer.wait_for(std::chrono::milliseconds(milliseconds)) == std::future_status::ready;
}

// Until the answer is there or the time is over; true where the user has enough of it before.
bool isGivenUp(const std::future<int>& answer, const Wait& wait, QWidget* window)
{
    const QPointer<QProgressDialog> dialog(
        makeProgressDialog(wait.words, 0, window)); // which the window may take along
    dialog->setObjectName(QStringLiteral("reportWait"));
    QTimer looks;
    QObject::connect(&looks, &QTimer::timeout, dialog, [&answer, dialog = dialog.data()] {
        if (isThere(answer))
            dialog->accept();
    });
    looks.start(lookMilliseconds);
    if (wait.seconds > 0)
        QTimer::singleShot(std::chrono::seconds(wait.seconds), dialog, &QDialog::reject);
    dialog->exec();
    const bool isGivenUp = !dialog || dialog->wasCanceled();
    delete dialog;
    return isGivenUp;
}

} // namespace

Answer answerOf(std::function<int()> call, const Wait& wait, QWidget* window)
{
    std::packaged_task<int()> task(std::move(call));
    std::future<int> answer = task.get_future();
    std::thread(std::move(task)).detach();
    if (!isThere(answer, patienceMilliseconds) && isGivenUp(answer, wait, window))
        return {Answer::Kind::GivenUp};
    if (!isThere(answer))
        return {Answer::Kind::TooLate};
    return {Answer::Kind::There, answer.get()};
}

QProgressDialog* makeProgressDialog(const QString& words, int steps, QWidget* window)
{
    auto* dialog = new QProgressDialog(words, QStringLiteral("Cancel"), 0, steps, window);
    dialog->setWindowTitle(window->windowTitle());
    dialog->setWindowModality(Qt::ApplicationModal);
    const int forTitle = dialog->fontMetrics().horizontalAdvance(dialog->windowTitle()) + forms::look::grid(12);
    dialog->setMinimumWidth(std::min(forTitle, window->screen()->availableSize().width()));
    return dialog;
}

} // namespace report
