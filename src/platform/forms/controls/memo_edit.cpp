// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/controls/memo_edit.h"

#include "platform/forms/looks/theme.h"

#include <QDropEvent>
#include <QMimeData>
#include <QTextCursor>

namespace forms {

namespace {

// As toPlainText() gives it, but for the no-break spaces, which that turns into blanks.
QString withLineEnds(QString raw)
{
    return raw.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
}

} // namespace

MemoEdit::MemoEdit(QWidget* parent, TextEntry& box)
    : OwnWidth(parent)
    , Entry(box, Lines::Several)
{
    setTabChangesFocus(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    document()->setDocumentMargin(look::textInset() - frameWidth()); // as far in as the text of other boxes
    QObject::connect(this, &QPlainTextEdit::textChanged, this, [this] { contentChanged(); });
}

QString MemoEdit::content() const
{
    return withLineEnds(document()->toRawText());
}

QString MemoEdit::selectedText() const
{
    return withLineEnds(textCursor().selectedText());
}

void MemoEdit::setSelection(int start, int length)
{
    QTextCursor cursor = textCursor();
    cursor.setPosition(start);
    cursor.setPosition(start + length, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

void MemoEdit::insertText(const QString& text)
{
    textCursor().insertText(text);
    ensureCursorVisible();
}

void MemoEdit::placeCaret(const QPoint& position)
{
    QDragLeaveEvent end; // the toolkit's own drop would hold the changes back until its end
    QPlainTextEdit::dragLeaveEvent(&end);
    setTextCursor(cursorForPosition(position));
}

void MemoEdit::keyPressEvent(QKeyEvent* event)
{
    keyPressed(*event);
    ensureCursorVisible();
}

void MemoEdit::keyReleaseEvent(QKeyEvent* event)
{
    keyReleased(*event, [this, event] { QPlainTextEdit::keyReleaseEvent(event); });
}

void MemoEdit::inputMethodEvent(QInputMethodEvent* event)
{
    composed(*event);
}

void MemoEdit::mousePressEvent(QMouseEvent* event)
{
    pressed(*event, [this, event] {
        // No drag begins: it would move the text out past the handlers.
        if (event->button() != Qt::RightButton && !(event->modifiers() & Qt::ShiftModifier))
            setTextCursor(cursorForPosition(event->position().toPoint()));
        QPlainTextEdit::mousePressEvent(event);
    });
}

void MemoEdit::mouseMoveEvent(QMouseEvent* event)
{
    moved(*event, [this, event] { QPlainTextEdit::mouseMoveEvent(event); });
}

void MemoEdit::mouseReleaseEvent(QMouseEvent* event)
{
    released(*event, [this, event] { QPlainTextEdit::mouseReleaseEvent(event); });
}

void MemoEdit::mouseDoubleClickEvent(QMouseEvent* event)
{
    doubleClicked(*event, [this, event] { QPlainTextEdit::mouseDoubleClickEvent(event); });
}

void MemoEdit::contextMenuEvent(QContextMenuEvent* event)
{
    menuAsked(*event);
}

void MemoEdit::dragEnterEvent(QDragEnterEvent* event)
{
    QPlainTextEdit::dragEnterEvent(event);
    answerWithCopy(*event);
}

void MemoEdit::dragMoveEvent(QDragMoveEvent* event)
{
    QPlainTextEdit::dragMoveEvent(event);
    answerWithCopy(*event);
}

void MemoEdit::dropEvent(QDropEvent* event)
{
    dropped(*event);
}

bool MemoEdit::canInsertFromMimeData(const QMimeData* source) const
{
    return source->hasText();
}

QMimeData* MemoEdit::createMimeDataFromSelection() const
{
    auto* copied = new QMimeData;
    copied->setText(selectedText());
    return copied;
}

} // namespace forms
