// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/controls/entry.h"
#include "platform/forms/controls/own_width.h"

#include <QLineEdit>

namespace forms {

/// The entry of one line, of a text box or of a combo box; for the layer itself, not for screens. A text too long for
/// it ends in an ellipsis while the focus is elsewhere.
class LineEdit : public OwnWidth<QLineEdit>, public Entry {
public:
    LineEdit(QWidget* parent, TextEntry& box);

    QString content() const override { return text(); }
    bool isLocked() const override { return isReadOnly(); }
    void setLocked(bool locked) override { setReadOnly(locked); }
    int selectionStart() const override;
    QString selectedText() const override { return QLineEdit::selectedText(); }

    /// Whether the box has room for the whole of a text.
    bool fits(const QString& text) const;

    /// Whether the tool tip tells the whole of a text that is too long; and tells it of a text that is to come.
    void setToldWhole(bool told) { toldWhole_ = told; }
    void tellWhole(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    QRect room() const;
    QWidget& self() override { return *this; }
    void setContent(const QString& text) override { setText(text); }
    void setSelection(int start, int length) override;
    void insertText(const QString& text) override { insert(text); }
    void removeBack() override { backspace(); }
    void copySelected() override { copy(); }
    void placeCaret(const QPoint& position) override { setCursorPosition(cursorPositionAt(position)); }
    void toolkitKey(QKeyEvent& event) override { QLineEdit::keyPressEvent(&event); }
    void toolkitInput(QInputMethodEvent& event) override { QLineEdit::inputMethodEvent(&event); }

    bool toldWhole_ = false;
};

} // namespace forms
