// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/controls/line_edit.h"

#include "platform/forms/looks/theme.h"

#include <QDropEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>

#include <limits>

namespace forms {

LineEdit::LineEdit(QWidget* parent, TextEntry& box)
    : OwnWidth(parent)
    , Entry(box, Lines::One)
{
    setMaxLength(std::numeric_limits<int>::max());
    setTextMargins(look::entryTextMargin, 1, look::entryTextMargin, 1);
    QObject::connect(this, &QLineEdit::textChanged, this, [this] { contentChanged(); });
}

int LineEdit::selectionStart() const
{
    return hasSelectedText() ? QLineEdit::selectionStart() : cursorPosition();
}

void LineEdit::setSelection(int start, int length)
{
    if (length > 0) {
        QLineEdit::setSelection(start, length);
        return;
    }
    deselect();
    setCursorPosition(start);
}

// ---- a text too long

QRect LineEdit::room() const
{
    QStyleOptionFrame option;
    initStyleOption(&option);
    const int caret = 2; // the toolkit keeps so much free on both sides of the text
    return style()
        ->subElementRect(QStyle::SE_LineEditContents, &option, this)
        .marginsRemoved(textMargins())
        .adjusted(caret, 0, -caret, 0);
}

bool LineEdit::fits(const QString& text) const
{
    return fontMetrics().horizontalAdvance(text) <= room().width();
}

void LineEdit::tellWhole(const QString& text)
{
    if (toldWhole_)
        setToolTip(fits(text) ? QString() : asToolTip(text));
}

void LineEdit::resizeEvent(QResizeEvent* event)
{
    QLineEdit::resizeEvent(event);
    tellWhole(text());
}

void LineEdit::paintEvent(QPaintEvent* event)
{
    if (hasFocus() || hasSelectedText() || fits(text())) {
        QLineEdit::paintEvent(event);
        return;
    }
    QStyleOptionFrame option;
    initStyleOption(&option);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter, this);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(room(), static_cast<int>(alignment() | Qt::AlignVCenter),
        fontMetrics().elidedText(text(), Qt::ElideRight, room().width()));
}

// ---- what the toolkit calls

void LineEdit::keyPressEvent(QKeyEvent* event)
{
    keyPressed(*event);
}

void LineEdit::keyReleaseEvent(QKeyEvent* event)
{
    keyReleased(*event, [this, event] { QLineEdit::keyReleaseEvent(event); });
}

void LineEdit::inputMethodEvent(QInputMethodEvent* event)
{
    composed(*event);
}

void LineEdit::mousePressEvent(QMouseEvent* event)
{
    pressed(*event, [this, event] { QLineEdit::mousePressEvent(event); });
}

void LineEdit::mouseMoveEvent(QMouseEvent* event)
{
    moved(*event, [this, event] { QLineEdit::mouseMoveEvent(event); });
}

void LineEdit::mouseReleaseEvent(QMouseEvent* event)
{
    released(*event, [this, event] { QLineEdit::mouseReleaseEvent(event); });
}

void LineEdit::mouseDoubleClickEvent(QMouseEvent* event)
{
    doubleClicked(*event, [this, event] { QLineEdit::mouseDoubleClickEvent(event); });
}

void LineEdit::contextMenuEvent(QContextMenuEvent* event)
{
    menuAsked(*event);
}

void LineEdit::dragEnterEvent(QDragEnterEvent* event)
{
    QLineEdit::dragEnterEvent(event);
    answerWithCopy(*event);
}

void LineEdit::dragMoveEvent(QDragMoveEvent* event)
{
    QLineEdit::dragMoveEvent(event);
    answerWithCopy(*event);
}

void LineEdit::dropEvent(QDropEvent* event)
{
    dropped(*event);
}

} // namespace forms
