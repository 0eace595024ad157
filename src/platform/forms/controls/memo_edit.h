// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/controls/entry.h"
#include "platform/forms/controls/own_width.h"

#include <QPlainTextEdit>

namespace forms {

/// The entry of several lines; for the layer itself, not for screens.
class MemoEdit : public OwnWidth<QPlainTextEdit>, public Entry {
public:
    MemoEdit(QWidget* parent, TextEntry& box);

    QString content() const override;
    bool isLocked() const override { return isReadOnly(); }
    void setLocked(bool locked) override { setReadOnly(locked); }
    int selectionStart() const override { return textCursor().selectionStart(); }
    QString selectedText() const override;

protected:
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
    bool canInsertFromMimeData(const QMimeData* source) const override;
    QMimeData* createMimeDataFromSelection() const override;

private:
    QWidget& self() override { return *this; }
    void setContent(const QString& text) override { setPlainText(text); }
    void setSelection(int start, int length) override;
    void insertText(const QString& text) override;
    void removeBack() override { textCursor().deletePreviousChar(); }
    void copySelected() override { copy(); }
    void placeCaret(const QPoint& position) override;
    void toolkitKey(QKeyEvent& event) override { QPlainTextEdit::keyPressEvent(&event); }
    void toolkitInput(QInputMethodEvent& event) override { QPlainTextEdit::inputMethodEvent(&event); }
};

} // namespace forms
