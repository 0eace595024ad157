// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/input_gate.h"

#include "platform/forms/control.h"
#include "platform/forms/stage.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleHints>

#include <utility>

namespace forms {

namespace {

// A list or a menu is part of the window over which it opens.
QWindow* homeOf(QWindow* window)
{
    while (window->type() == Qt::Popup && window->transientParent())
        window = window->transientParent();
    return window;
}

} // namespace

InputGate& InputGate::instance()
{
    static InputGate the;
    return the;
}

void InputGate::guard(QApplication& application)
{
    application.installEventFilter(this);
}

bool InputGate::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        if (!watched->isWindowType() || !isForeign(watched, *static_cast<QKeyEvent*>(event)))
            return false;
        event->accept(); // which makes it no access key
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        if (!watched->isWindowType())
            return false;
        deliver(*static_cast<QWindow*>(watched), *static_cast<QMouseEvent*>(event));
        return true;
    case QEvent::ContextMenu:
        letFocusIn(); // the menu has an event loop of its own, inside the press
        return false;
    default:
        return false;
    }
}

// ---- keys

bool InputGate::isForeign(QObject* window, const QKeyEvent& stroke)
{
    if (!stroke.isAutoRepeat()) {
        heldKey_ = stroke.key();
        heldIn_ = window;
        return false;
    }
    return stroke.type() == QEvent::ShortcutOverride || stroke.key() != heldKey_ || window != heldIn_;
}

// ---- presses

bool InputGate::isStray(QWindow& window, const QMouseEvent& press) const
{
    const QStyleHints& hints = *QGuiApplication::styleHints();
    const auto distance = (press.globalPosition() - pressedAt_).manhattanLength();
    return pressedIn_ != homeOf(&window) && distance <= hints.mouseDoubleClickDistance()
        && press.timestamp() - pressedWhen_ < static_cast<unsigned long>(hints.mouseDoubleClickInterval());
}

void InputGate::deliver(QWindow& window, QMouseEvent& press)
{
    if (isStray(window, press))
        return;
    pressedIn_ = homeOf(&window);
    pressedAt_ = press.globalPosition();
    pressedWhen_ = press.timestamp();
    delivering_ = true;
    brought_ = nullptr;
    // The filter itself delivers the press, so that it is here when all that it was on has had it.
    static_cast<QObject&>(window).event(&press);
    letFocusIn();
}

bool InputGate::holdsBack(QWidget* now)
{
    if (delivering_)
        brought_ = now;
    return delivering_;
}

bool InputGate::letFocusIn()
{
    delivering_ = false;
    QWidget* brought = std::exchange(brought_, nullptr);
    return brought && Stage::instance().follow(brought);
}

bool InputGate::reaches(const Control& control, const QMouseEvent& press)
{
    const bool brought = letFocusIn();
    return (QGuiApplication::mouseButtons() & press.button()) && (!brought || control.hasFocus());
}

} // namespace forms
