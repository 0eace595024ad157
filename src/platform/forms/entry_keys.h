// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/text_box.h"

#include <QLineEdit>
#include <QPointF>

#include <functional>

class QKeyEvent;

namespace forms {

/// What the entries of all boxes do alike; for the layer itself, not for screens.
class EntryKeys {
public:
    static void changed(TextEntry& box) { box.Change.fire(); }
    static void clicked(TextEntry& box) { box.Click.fire(); }
    static void doubleClicked(TextEntry& box) { box.DblClick.fire(); }
    static void mouseDown(TextEntry& box) { box.MouseDown.fire(); }
    static void mouseUp(TextEntry& box) { box.MouseUp.fire(); }

    /// True when no handler looks at single characters, so that a long text can go in at once.
    static bool takesWhole(const TextEntry& box) { return !box.KeyPress && !box.Change; }

    /// Gives the characters of a text to `take` one by one. What is left is dropped when a handler moves the focus
    /// away, shows a box or brings another screen forward.
    static void typeAll(TextEntry& box, const QString& text, const std::function<void(int)>& take);

    /// True for a key that takes out a word or the rest of a line.
    static bool takesOutMore(const QKeyEvent& event);

    /// True when KeyDown refuses the Delete key: then no text can be taken out by menu or Ctrl+X either.
    static bool refusesDelete(TextEntry& box);

    /// True for the Delete key in a box that refuses it.
    static bool keepsDelete(const TextEntry& box, const QKeyEvent& event);

    /// What of `wanted` fits: characters count against the box's limit, UTF-16 units against `ceiling`; `replaced` is
    /// selected and makes room.
    static QString fitting(
        const TextEntry& box, const QString& text, const QString& replaced, const QString& wanted, qsizetype ceiling);

    /// The menu of a box; its commands go the ways of the keys.
    struct MenuCommands {
        std::function<void()> cut, copy, paste, remove, selectAll;
        bool selected, locked;
    };
    static void showMenu(QWidget* parent, const QPoint& at, const MenuCommands& commands);

    /// GotFocus waits for the press, so that the handler finds the caret where the mouse has put it.
    static void awaitPress(TextEntry& box, bool wait) { box.focusAwaitsPress_ = wait; }
    static bool awaitsPress(const TextEntry& box) { return box.focusAwaitsPress_; }

    /// Gives the box the focus for which it has waited.
    static void catchUp(TextEntry& box);
};

/// True for a character that a text can hold: no control character.
bool isTextCharacter(int character);

QString textOf(int character);

/// The entry of one line, of a text box or of a combo box.
class LineEdit : public QLineEdit {
public:
    LineEdit(QWidget* parent, TextEntry& box);

    /// Handles a key that came to the box.
    void handleKey(QKeyEvent& event);

    /// Replaces the text without firing anything.
    void put(const QString& text);

    /// Whether a text too long for the box ends in an ellipsis while the focus is elsewhere.
    void setElided(bool elided) { elided_ = elided; }
    bool isElided() const { return elided_; }

    /// Whether the box has room for the whole text.
    bool fits() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    QRect room() const;
    void takeCharacter(int character);
    void takeText(const QString& text);
    void insertFitting(const QString& text);
    void byToolkit(const std::function<void()>& call);
    void cutByUser();
    void deleteByUser();

    TextEntry& box_;
    QPointF focusingPress_; // where the press was that brought the focus
    bool steady_ = false; // true until the mouse has really moved after it
    bool elided_ = false;
};

} // namespace forms
