// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/input/wheel.h"

#include <QCoreApplication>
#include <QWheelEvent>
#include <QWidget>

namespace forms {

namespace {

/// There is one hand at the wheel.
struct Turn {
    const void* receiver = nullptr;
    int sum = 0; // of less than a notch
};

Turn turn;

bool pointsElsewhere(int one, int other)
{
    return (one < 0 && other > 0) || (one > 0 && other < 0);
}

/// Hands a widget whole notches in place of the turns that it is sent.
class NotchFilter : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::Wheel || passesOn_)
            return false;
        const auto& turned = static_cast<const QWheelEvent&>(*event);
        const int angle = wheelNotches(*watched, turned) * QWheelEvent::DefaultDeltasPerStep;
        passesOn_ = true;
        if (angle != 0) {
            QWheelEvent whole(turned.position(), turned.globalPosition(), {}, {0, angle}, turned.buttons(),
                turned.modifiers(), turned.phase(), turned.inverted());
            QCoreApplication::sendEvent(watched, &whole);
        }
        passesOn_ = false;
        event->accept();
        return true;
    }

private:
    bool passesOn_ = false;
};

} // namespace

int wheelNotches(const QObject& receiver, const QWheelEvent& event)
{
    constexpr int notch = QWheelEvent::DefaultDeltasPerStep;
    const int angle = event.angleDelta().y();
    if (turn.receiver != &receiver || event.phase() == Qt::ScrollBegin || pointsElsewhere(turn.sum, angle))
        turn = {&receiver, 0};
    turn.sum += angle;
    const int notches = turn.sum / notch;
    turn.sum %= notch;
    return notches;
}

void turnByNotches(QWidget& widget)
{
    widget.installEventFilter(new NotchFilter(&widget));
}

void dropWheelSum()
{
    turn = {};
}

} // namespace forms
