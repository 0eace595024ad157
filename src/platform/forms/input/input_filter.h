// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/input/held_input.h"

#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QWidget>
#include <QWindow>

class QApplication;
class QKeyEvent;
class QMouseEvent;

namespace forms {

class Control;

/// What the user's hands do comes through here before a window has it; for the layer itself, not for screens.
///
/// A key that is held belongs to the window in which it went down: what it repeats answers no box and no screen that
/// has opened since, and an access key doesn't repeat at all. A key that closes a list does nothing else. The further
/// presses of a double or triple click belong to the window of the first, and to none where that was a list, which has
/// closed.
/// What comes behind the answer to a question waits for the handler that asked.
///
/// The focus that a press brings waits until the press has put the caret, so that a handler's selection stays, and at
/// the latest until the press has been delivered, whatever part of a control it was on.
class InputFilter : public QObject {
public:
    static InputFilter& instance();

    void guard(QApplication& application);

    /// Asked when the toolkit's focus moves: true when the move waits for a press.
    bool holdsBack(QWidget* now);

    /// True while a press is on its way that has brought the focus.
    bool bringsFocus() const { return delivering_ && brought_; }

    /// Called by the control that the press is on, at the moment that suits it: LostFocus and GotFocus run. False when
    /// the press counts no longer: a handler has asked something meanwhile, or has sent the focus elsewhere.
    bool reaches(const Control& control);

    void handlerEnded() { held_.handlerEnded(); }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool filterWindow(QWindow& window, QEvent& event);
    static void passOn(QWindow& window, QEvent& event);
    bool takesAway(QObject& window, QKeyEvent& stroke);
    bool closedList(const QKeyEvent& stroke);
    bool isRepeat(const QKeyEvent& stroke) const;
    void noteRelease(const QKeyEvent& stroke);
    void followWindow(QWidget& window, QEvent::Type change);
    void deliverLate(QWindow& window, QEvent& event);
    bool isStray(QWindow& window, const QMouseEvent& press) const;
    void deliver(QWindow& window, QMouseEvent& press);
    bool letFocusIn();

    int heldKey_ = 0;
    QPointer<QObject> heldIn_;
    bool overList_ = false; // the stroke on its way has found a list open
    quint32 releasedCode_ = 0;
    unsigned long releasedWhen_ = 0;

    HeldInput held_{[this](QWindow& window, QEvent& event) { deliverLate(window, event); }};

    QPointer<QWindow> pressedIn_;
    bool pressedInList_ = false; // or in a menu
    QPointF pressedAt_;
    unsigned long pressedWhen_ = 0;
    unsigned long lastWhen_ = 0; // any press, also one that belonged to no window

    bool delivering_ = false;
    int interruptions_ = 0; // of the stage when the press came that is being delivered
    QPointer<QWidget> brought_; // has the toolkit's focus by the press that is being delivered
};

} // namespace forms
