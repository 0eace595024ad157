// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/input/input_filter.h"

#include "platform/forms/screens/control.h"
#include "platform/forms/screens/stage.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleHints>

#include <algorithm>
#include <iterator>
#include <utility>

namespace forms {

namespace {

// A list or a menu is part of the window over which it opens; where it belongs to none, as the toolkit's suggestions
// do, of the dialogue in front.
QWindow* homeOf(QWindow* window)
{
    while (window->type() == Qt::Popup && window->transientParent())
        window = window->transientParent();
    const QWidget* dialog = window->type() == Qt::Popup ? QApplication::activeModalWidget() : nullptr;
    return dialog ? dialog->windowHandle() : window;
}

enum class Sort { Other, AccessKey, KeyDown, KeyUp, Press, Release, Wheel, Close };

/// What is done with a kind of event.
struct Handling {
    QEvent::Type type;
    Sort sort;
    bool isByHand; ///< what a hand begins, or a key that it lets go: nothing for a window that is hidden by now
    bool waits; ///< behind the answer to a question
};

constexpr Handling handlings[] = {
    {QEvent::ShortcutOverride, Sort::AccessKey, true, false}, // it would be answered at once
    {QEvent::KeyPress, Sort::KeyDown, true, true},
    {QEvent::KeyRelease, Sort::KeyUp, true, true},
    {QEvent::MouseButtonPress, Sort::Press, true, true},
    {QEvent::MouseButtonDblClick, Sort::Press, true, true},
    {QEvent::MouseButtonRelease, Sort::Release, false, true},
    {QEvent::Wheel, Sort::Wheel, true, true},
    {QEvent::Close, Sort::Close, true, true},
};

const Handling& handlingOf(const QEvent& event)
{
    static constexpr Handling none{QEvent::None, Sort::Other, false, false};
    const auto* found = std::find_if(std::begin(handlings), std::end(handlings),
        [&event](const Handling& handling) { return handling.type == event.type(); });
    return found == std::end(handlings) ? none : *found;
}

bool isKey(const QEvent& event)
{
    const Sort sort = handlingOf(event).sort;
    return sort == Sort::KeyDown || sort == Sort::KeyUp;
}

// The answer to a ShortcutOverride that makes the key no access key; it then goes nowhere else.
bool isNoAccessKey(QEvent& event)
{
    event.accept();
    return true;
}

} // namespace

InputFilter& InputFilter::instance()
{
    static InputFilter instance;
    return instance;
}

void InputFilter::guard(QApplication& application)
{
    application.installEventFilter(this);
}

bool InputFilter::eventFilter(QObject* watched, QEvent* event)
{
    if (watched->isWindowType())
        return filterWindow(*static_cast<QWindow*>(watched), *event);
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::Hide:
        if (watched->isWidgetType())
            followWindow(*static_cast<QWidget*>(watched), event->type());
        return false;
    case QEvent::ShortcutOverride: // which the toolkit sends once more for a key that isn't the window system's own
        return static_cast<QKeyEvent*>(event)->isAutoRepeat() && isNoAccessKey(*event);
    case QEvent::ContextMenu:
        letFocusIn(); // the menu has an event loop of its own, inside the press
        return false;
    default:
        return false;
    }
}

bool InputFilter::filterWindow(QWindow& window, QEvent& event)
{
    const Handling& handling = handlingOf(event);
    if (!window.isVisible() && handling.isByHand) {
        passOn(window, event);
        return true;
    }
    if (handling.waits && held_.keeps(window, event)) {
        event.ignore();
        return true;
    }
    switch (handling.sort) {
    case Sort::AccessKey:
        if (held_.isWaiting())
            return isNoAccessKey(event); // not yet
        [[fallthrough]];
    case Sort::KeyDown:
        return takesAway(window, static_cast<QKeyEvent&>(event));
    case Sort::KeyUp:
        noteRelease(static_cast<QKeyEvent&>(event));
        return false;
    case Sort::Press:
        deliver(window, static_cast<QMouseEvent&>(event));
        return true;
    default:
        return false;
    }
}

// The window system has sent it to a window that is hidden by now. Keys behind the one that has closed a list are for
// the window below; all else is dropped, since another screen has come.
void InputFilter::passOn(QWindow& window, QEvent& event)
{
    QWindow* home = homeOf(&window);
    if (isKey(event) && home != &window && home->isVisible())
        QCoreApplication::sendEvent(home, &event);
    event.setAccepted(event.type() != QEvent::Close);
}

// ---- questions

void InputFilter::followWindow(QWidget& window, QEvent::Type change)
{
    const bool isAsking = window.isWindow() && (window.isModal() || window.windowType() == Qt::Popup);
    if (isAsking && change == QEvent::Show)
        held_.opened(window);
    else if (isAsking)
        held_.closed(window);
}

// A press and a release stay what the window system has told, so that a press moves the focus; a key is sent anew, so
// that the toolkit tries it as an access key.
void InputFilter::deliverLate(QWindow& window, QEvent& event)
{
    QObject& target = window;
    const Sort sort = handlingOf(event).sort;
    if (sort == Sort::Press)
        deliver(window, static_cast<QMouseEvent&>(event));
    else if (sort == Sort::Release || sort == Sort::Wheel)
        target.event(&event);
    else
        QCoreApplication::sendEvent(&window, &event);
}

// ---- keys

// True when the window gets no more of the stroke.
bool InputFilter::takesAway(QObject& window, QKeyEvent& stroke)
{
    if (!isRepeat(stroke)) {
        heldKey_ = stroke.key();
        heldIn_ = &window;
        return closedList(stroke);
    }
    if (stroke.type() == QEvent::ShortcutOverride)
        return isNoAccessKey(stroke);
    if (stroke.key() != heldKey_ || &window != heldIn_) {
        stroke.accept();
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
bool InputFilter::closedList(const QKeyEvent& stroke)
{
    const bool isOpen = QApplication::activePopupWidget();
    const bool wasOpen = std::exchange(overList_, isOpen && stroke.type() == QEvent::ShortcutOverride);
    return wasOpen && !isOpen && stroke.type() == QEvent::KeyPress;
}

// The window system tells a repeat as a release and a press at the same moment. The toolkit misses that when it reads
// the first before the second has come. While an assistive tool listens to keys it hands on copies, which have no time.
bool InputFilter::isRepeat(const QKeyEvent& stroke) const
{
    const bool atOnce = stroke.nativeScanCode() != 0 && stroke.nativeScanCode() == releasedCode_
        && stroke.timestamp() != 0 && stroke.timestamp() == releasedWhen_;
    return stroke.isAutoRepeat() || atOnce;
}

void InputFilter::noteRelease(const QKeyEvent& stroke)
{
    releasedCode_ = stroke.nativeScanCode();
    releasedWhen_ = stroke.timestamp();
}

// ---- presses

// The second press of a double click, or the third of a triple one, whose first has closed what it was on, or has
// brought something else. A press that closes a list from outside is sent again to what lies below, with the time that
// it has.
bool InputFilter::isStray(QWindow& window, const QMouseEvent& press) const
{
    const QStyleHints& hints = *QGuiApplication::styleHints();
    const auto distance = (press.globalPosition() - pressedAt_).manhattanLength();
    const bool isNext = press.timestamp() != pressedWhen_ && distance <= hints.mouseDoubleClickDistance()
        && press.timestamp() - lastWhen_ < static_cast<unsigned long>(hints.mouseDoubleClickInterval());
    const bool isElsewhere = &window != pressedIn_ && (pressedInList_ || homeOf(&window) != pressedIn_);
    return isNext && isElsewhere;
}

void InputFilter::deliver(QWindow& window, QMouseEvent& press)
{
    const bool isDropped = isStray(window, press);
    lastWhen_ = press.timestamp();
    if (isDropped)
        return;
    if (press.timestamp() != pressedWhen_) {
        pressedIn_ = &window;
        pressedInList_ = window.type() == Qt::Popup;
        pressedAt_ = press.globalPosition();
        pressedWhen_ = press.timestamp();
    }
    delivering_ = true;
    brought_ = nullptr;
    interruptions_ = Stage::instance().interruptions();
    // The filter itself delivers the press, so that it is here when all that it was on has had it.
    static_cast<QObject&>(window).event(&press);
    letFocusIn();
}

bool InputFilter::holdsBack(QWidget* now)
{
    if (delivering_)
        brought_ = now;
    return delivering_;
}

bool InputFilter::letFocusIn()
{
    delivering_ = false;
    QWidget* brought = std::exchange(brought_, nullptr);
    return brought && Stage::instance().follow(brought);
}

bool InputFilter::reaches(const Control& control)
{
    const int interruptions = interruptions_;
    const bool brought = letFocusIn();
    return interruptions == Stage::instance().interruptions() && (!brought || control.hasFocus());
}

} // namespace forms
