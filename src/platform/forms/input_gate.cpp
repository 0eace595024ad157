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
        return watched->isWindowType() && takesAway(*watched, *static_cast<QKeyEvent*>(event));
    case QEvent::KeyRelease:
        if (watched->isWindowType())
            noteRelease(*static_cast<QKeyEvent*>(event));
        return false;
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

// True when the window gets no more of the stroke.
bool InputGate::takesAway(QObject& window, QKeyEvent& stroke)
{
    if (!isRepeat(stroke)) {
        heldKey_ = stroke.key();
        heldIn_ = &window;
        return closedList(stroke);
    }
    const bool isForeign = stroke.key() != heldKey_ || &window != heldIn_;
    if (stroke.type() == QEvent::ShortcutOverride || isForeign) {
        stroke.accept(); // which makes it no access key
        return true;
    }
    if (stroke.isAutoRepeat())
        return false;
    QKeyEvent repeat(stroke.type(), stroke.key(), stroke.modifiers(), stroke.nativeScanCode(),
        stroke.nativeVirtualKey(), stroke.nativeModifiers(), stroke.text(), true);
    repeat.setTimestamp(stroke.timestamp());
    window.event(&repeat);
    return true;
}

// A list closes before the press itself is delivered, and where the screen has the keys (Wayland) the press would then
// answer the screen: a default button would be pressed by the Enter that has picked an item.
bool InputGate::closedList(const QKeyEvent& stroke)
{
    const bool isOpen = QApplication::activePopupWidget();
    const bool wasOpen = std::exchange(overList_, isOpen && stroke.type() == QEvent::ShortcutOverride);
    return wasOpen && !isOpen && stroke.type() == QEvent::KeyPress;
}

// The window system tells a repeat as a release and a press at the same moment. The toolkit misses that when it reads
// the first before the second has come.
bool InputGate::isRepeat(const QKeyEvent& stroke) const
{
    const bool atOnce =
        stroke.nativeScanCode() != 0 && stroke.nativeScanCode() == releasedCode_ && stroke.timestamp() == releasedWhen_;
    return stroke.isAutoRepeat() || atOnce;
}

void InputGate::noteRelease(const QKeyEvent& stroke)
{
    releasedCode_ = stroke.nativeScanCode();
    releasedWhen_ = stroke.timestamp();
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
