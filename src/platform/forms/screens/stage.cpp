// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/screens/stage.h"

#include "platform/forms/runtime/boundary.h"
#include "platform/forms/screens/active_window.h"
#include "platform/forms/screens/form.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace forms {

namespace {

// A window manager answers within a few dozen milliseconds; without one no answer comes.
constexpr int longestWaitMilliseconds = 500;

bool isInFront(const Form& form)
{
    const QWindow* window = form.window()->windowHandle();
    return window && window->isExposed() && form.window()->isActiveWindow();
}

} // namespace

Stage& Stage::instance()
{
    static Stage instance;
    return instance;
}

void Stage::attend(QApplication& application, Hands hands)
{
    hands_ = std::move(hands);
    QObject::connect(
        &application, &QApplication::focusChanged, &application, [this](QWidget*, QWidget* now) { focusMoved(now); });
}

void Stage::focusMoved(QWidget* now)
{
    if (!insideToolkitCall() && !hands_.holdFocusBack(now))
        follow(now);
}

bool Stage::follow(QWidget* now)
{
    Control* control = controlOf(now);
    // What comes and goes with windows is no move of the focus within a screen.
    if (!control || !control->form().isVisible() || active_ != &control->form())
        return false;
    fromToolkit([control] { control->form().moveFocus(control); });
    return true;
}

Control* Stage::controlOf(QWidget* widget) const
{
    for (; widget; widget = widget->parentWidget())
        if (Control* control = controls_.value(widget))
            return control;
    return nullptr;
}

void Stage::activate(Form* form)
{
    if (active_ == form)
        return;
    interrupted();
    if (form)
        putOnTop(*form);
    if (Form* left = std::exchange(active_, form))
        runHandler(left->path(), "Deactivate", [left] { left->Form_Deactivate(); });
    if (active_ != form || !form)
        return;
    runHandler(form->path(), "Activate", [form] { form->Form_Activate(); });
    if (active_ == form && form->isVisible()) // Form_Activate may have hidden it
        form->enter();
}

void Stage::giveUpFront()
{
    activate(nullptr);
    frontGivenUp_ = true;
    if (!handlerRuns())
        handOnFront();
}

void Stage::handOnFront()
{
    if (!std::exchange(frontGivenUp_, false) || active_)
        return;
    if (Form* next = top())
        bringForward(*next);
    activate(top());
}

void Stage::bringForward(Form& form)
{
    const ToolkitCall call;
    form.window()->raise();
    form.window()->activateWindow();
    // A window that had the focus when it was hidden is not told again that it is active.
    if (!form.window()->isActiveWindow() && QGuiApplication::focusWindow() == form.window()->windowHandle())
        takeForActive(form.window());
    awaited_ = form.window()->isActiveWindow() ? nullptr : &form;
}

void Stage::windowActivated(Form& form)
{
    if (awaited_ && awaited_ != &form)
        return;
    awaited_ = nullptr;
    if (insideToolkitCall() || active_ == &form || !form.isVisible())
        return;
    fromToolkit([this, &form] { activate(&form); });
}

void Stage::putOnTop(Form& form)
{
    std::erase(shown_, &form);
    shown_.push_back(&form);
}

void Stage::hidden(Form& form)
{
    std::erase(shown_, &form);
    if (awaited_ == &form)
        awaited_ = nullptr;
}

void Stage::destroyed(Form& form)
{
    hidden(form);
    if (active_ == &form)
        active_ = nullptr;
}

bool Stage::isScreen(const QWidget& window) const
{
    return std::any_of(shown_.begin(), shown_.end(), [&window](const Form* form) { return form->window() == &window; });
}

Form* Stage::top() const
{
    return shown_.empty() ? nullptr : shown_.back();
}

void Stage::settle()
{
    Form* form = awaited_;
    if (!form)
        return;
    const ToolkitCall call;
    QElapsedTimer waited;
    waited.start();
    while (awaited_ == form && waited.elapsed() < longestWaitMilliseconds) {
        if (isInFront(*form))
            break;
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 10);
    }
    awaited_ = nullptr;
}

void Stage::settleUnless(const Form& form)
{
    if (awaited_ != &form)
        settle();
}

void Stage::paint(Form& form)
{
    if (instance().awaited_ == &form)
        instance().settle();
    const ToolkitCall call;
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

Form* activeForm()
{
    return Stage::instance().active();
}

} // namespace forms
