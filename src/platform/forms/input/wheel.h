// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QObject;
class QWheelEvent;
class QWidget;

namespace forms {

/// How many notches the mouse wheel has been turned on with an event that came to a receiver: positive away from the
/// user. A touchpad and a wheel of high resolution turn by less; what they turn is summed up to whole notches. The sum
/// begins anew when the direction turns, when another receiver has the wheel, and with a new movement of the fingers.
int wheelNotches(const QObject& receiver, const QWheelEvent& event);

/// Has a widget of the toolkit hear of whole notches alone: a list or a number that turns its value by the wheel.
void turnByNotches(QWidget& widget);

/// Drops what has been summed, where the wheel does something else meanwhile.
void dropWheelSum();

} // namespace forms
