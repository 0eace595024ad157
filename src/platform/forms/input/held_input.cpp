// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/input/held_input.h"

#include "platform/forms/runtime/boundary.h"
#include "platform/forms/screens/form.h"
#include "platform/forms/screens/stage.h"

#include <QThread>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace forms {

namespace {

constexpr int patienceMilliseconds = 10;

int eventLoop()
{
    return QThread::currentThread()->loopLevel();
}

bool isInFront(const QWindow& window)
{
    const QWidget* widget = QWidget::find(window.winId());
    if (!widget || !widget->isVisible())
        return false;
    const Stage& stage = Stage::instance();
    return !stage.isScreen(*widget) || (stage.active() && stage.active()->window() == widget);
}

} // namespace

void HeldInput::opened(QWidget& window)
{
    questions_.push_back({&window, eventLoop()});
    answered_.reset();
    kept_.clear();
}

void HeldInput::closed(QWidget& window)
{
    const auto asked = std::find_if(questions_.rbegin(), questions_.rend(),
        [&window](const Question& question) { return question.window == &window; });
    if (asked == questions_.rend())
        return;
    if (eventLoop() > asked->loop) // else nobody waits, as with the list of a box
        answered_ = asked->loop;
    questions_.erase(std::next(asked).base());
}

bool HeldInput::holds() const
{
    return answered_ && (eventLoop() > *answered_ || loopWaitsForHandler());
}

bool HeldInput::isWaiting()
{
    if (!holds())
        answered_.reset();
    return answered_ || !kept_.empty();
}

bool HeldInput::keeps(QWindow& window, const QEvent& event)
{
    if (&event == passing_ || !isWaiting())
        return false;
    kept_.push_back({&window, std::unique_ptr<QEvent>(event.clone())});
    handOnIn(patienceMilliseconds); // where no handler of ours has asked, but a dialogue of the toolkit
    return true;
}

void HeldInput::handlerEnded()
{
    if (!kept_.empty() && !holds())
        handOnIn(0);
}

void HeldInput::handOnIn(int milliseconds)
{
    QTimer::singleShot(milliseconds, this, [this] { handOn(); });
}

void HeldInput::handOn()
{
    if (kept_.empty())
        return;
    if (holds() || insideToolkitCall()) {
        handOnIn(patienceMilliseconds);
        return;
    }
    while (!kept_.empty() && !holds()) {
        Stage::instance().settle(); // a press on a window that isn't active yet would click before it brings the focus
        const Kept next = std::move(kept_.front());
        kept_.pop_front();
        if (!next.window || !isInFront(*next.window))
            continue;
        passing_ = next.event.get();
        deliver_(*next.window, *next.event);
        passing_ = nullptr;
    }
}

} // namespace forms
