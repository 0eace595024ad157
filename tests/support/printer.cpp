// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/printer.h"

#include "support/files.h"
#include "support/print.h"

#include <QtWidgets>

#include <cups/cups.h>

#include <mutex>
#include <utility>

namespace printer {

namespace {

std::optional<Job> handed;
State now = State::Ready;
std::mutex answers; // locked while the service is silent

// What most jobs are handed over with.
const QStringList usual{"media=A4", "copies=1", "collate=true", "sides=one-sided", "print-color-mode=monochrome",
    "number-up=1", "number-up-layout=lrtb", "job-billing=", "job-priority=50", "job-sheets=none,none"};

QStringList told;

/// Sees the wait as soon as it is told, and by whom.
class Attendant : public QObject {
public:
    User user = User::GivesUp;

private:
    bool eventFilter(QObject* shown, QEvent* event) override
    {
        if (event->type() != QEvent::Show || shown->objectName() != "reportWait")
            return false;
        const auto* wait = static_cast<QProgressDialog*>(shown);
        EXPECT_EQ(wait->windowTitle(), wait->parentWidget()->windowTitle());
        EXPECT_GT(wait->width(), wait->fontMetrics().horizontalAdvance(wait->windowTitle()));
        EXPECT_TRUE(wait->isModal());
        told += wait->labelText();
        if (user == User::GivesUp)
            QMetaObject::invokeMethod(shown, "cancel", Qt::QueuedConnection);
        else
            answer();
        return false;
    }
};

Attendant& attendant()
{
    static Attendant the;
    return the;
}

} // namespace

std::optional<Job> job()
{
    std::optional<Job> job = std::exchange(handed, {});
    if (job) {
        EXPECT_EQ(job->options.size(), usual.size());
        job->options.removeIf([](const QString& option) { return usual.contains(option); });
    }
    return job;
}

void be(State state)
{
    now = state;
    handed.reset();
}

void hang(User user)
{
    answers.lock();
    attendant().user = user;
    qApp->installEventFilter(&attendant());
}

void answer()
{
    qApp->removeEventFilter(&attendant());
    answers.unlock();
}

QStringList waits()
{
    return std::exchange(told, {});
}

} // namespace printer

extern "C" {

int cupsGetDests(cups_dest_t** queues)
{
    const std::lock_guard hung(printer::answers);
    return printer::now == printer::State::Missing ? 0 : cupsAddDest("Paper", nullptr, 0, queues);
}

cups_dest_t* cupsGetNamedDest(http_t*, const char* name, const char* instance)
{
    cups_dest_t* queue = nullptr;
    cupsAddDest(name, instance, 0, &queue);
    return queue;
}

const char* cupsGetPPD(const char*)
{
    static const QTemporaryDir folder;
    static const QByteArray path = folder.filePath("printer.ppd").toLocal8Bit();
    QFile::copy(kept("support/printer.ppd"), path); // whoever asks deletes it
    return path.constData();
}

int cupsPrintFile(const char* queue, const char* file, const char* title, int count, cups_option_t* options)
{
    const bool isSilent = !printer::answers.try_lock();
    const bool isGivenUp = isSilent && printer::attendant().user == printer::User::GivesUp;
    if (isSilent)
        printer::answers.lock();
    const std::lock_guard answering(printer::answers, std::adopt_lock);
    if (isGivenUp)
        return 0; // to nobody
    printer::handed = {queue, title, pdf::read(file), {}};
    for (const cups_option_t* option = options; option != options + count; ++option)
        printer::handed->options += QString("%1=%2").arg(option->name, option->value);
    return printer::now == printer::State::Refusing ? 0 : 1;
}

} // extern "C"
