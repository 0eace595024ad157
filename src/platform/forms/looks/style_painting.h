// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPixmap>
#include <QRect>
#include <QStyle>

class QPainter;
class QStyleOption;
class QStyleOptionButton;
class QStyleOptionSlider;

/// How the parts of the light style are painted; for the style alone.
namespace forms::look::paint {

constexpr int captionGap = 8; ///< pixels between a mark or an icon and its caption

enum class Heading { Up, Down, Left, Right };

/// A flat, rounded face with a frame.
void panel(QPainter& painter, const QRect& rect, const QColor& face, const QColor& line, qreal width);

/// How a command button stands out from the others.
struct Ink {
    bool isFilled = false;
    bool isDestructive = false; ///< in the colour of danger, not in that of the accent
};

/// The face of a command button; the focused one is marked.
void button(QPainter& painter, const QStyleOption& option, Ink ink);

/// Icon and caption of a command button; the icon stands on the right where the button is laid out from the right.
void buttonLabel(QPainter& painter, const QStyleOptionButton& option, Ink ink);

/// The face behind an option that is shown like a button of a menu.
void choice(QPainter& painter, const QStyleOption& option);

/// The face of a box with an entry or a list.
void box(QPainter& painter, const QStyleOption& option);

/// The square of a check box and the ring of an option, with their marks.
void square(QPainter& painter, const QStyleOption& option);
void ring(QPainter& painter, const QStyleOption& option);

/// The frame around the caption of a check box or an option that has the focus.
void focusFrame(QPainter& painter, const QRect& rect);

/// An arrow of two strokes, in the middle of a place.
void arrow(QPainter& painter, const QRect& place, Heading heading, const QColor& colour);

/// A scroll bar: its arrows, its way and its handle.
void scrollBar(QPainter& painter, const QStyleOptionSlider& option, const QRect& back, const QRect& forth,
    const QRect& way, const QRect& handle);

/// The sign of a message box, a mark on a disc; a null picture for any other one.
QPixmap sign(QStyle::StandardPixmap pixmap, int size, qreal ratio);

} // namespace forms::look::paint
