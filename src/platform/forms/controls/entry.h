// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/controls/text_box.h"

#include <QClipboard>
#include <QPointF>

#include <functional>

class QContextMenuEvent;
class QDropEvent;
class QInputMethodEvent;
class QKeyEvent;
class QMouseEvent;
class QWidget;

namespace forms {

/// True for a character that a text can hold: no control character.
bool isTextCharacter(int character);

QString textOf(int character);

/// A text of the user's as a tool tip, which would take for markup what looks like it.
QString asToolTip(const QString& text);

/// The toolkit's entry in a box, of one line or of several: what both do alike with keys, mouse and all other ways in
/// which text gets in. The toolkit's class hands its callbacks on; for the layer itself, not for screens.
class Entry {
public:
    enum class Lines { One, Several };

    Entry(TextEntry& box, Lines lines);
    virtual ~Entry() = default;
    Entry(const Entry&) = delete;
    Entry& operator=(const Entry&) = delete;

    virtual QString content() const = 0;
    virtual bool isLocked() const = 0;
    virtual void setLocked(bool locked) = 0;

    /// Where the selection begins, or the caret where nothing is selected; and what of the text is selected.
    virtual int selectionStart() const = 0;
    virtual QString selectedText() const = 0;

    /// Selects so much, the ends cut to the text; nothing leaves the caret at the start.
    void select(int start, int length);

    /// Replaces the text without firing anything; it is shown from its beginning.
    void put(const QString& text);

    /// Handles a key that came to the box.
    void handleKey(QKeyEvent& event);

protected:
    using ToolkitStep = std::function<void()>; // what the toolkit's own class does with an event

    void keyPressed(QKeyEvent& event);
    void keyReleased(QKeyEvent& event, const ToolkitStep& step);
    void composed(QInputMethodEvent& event);
    void pressed(QMouseEvent& event, const ToolkitStep& step);
    void moved(QMouseEvent& event, const ToolkitStep& step);
    void released(QMouseEvent& event, const ToolkitStep& step);
    void doubleClicked(QMouseEvent& event, const ToolkitStep& step);
    void menuAsked(QContextMenuEvent& event);
    void dropped(QDropEvent& event);

    /// Answers a text that is dragged in with a copy, so that the source keeps its own; one that can only be moved is
    /// not taken.
    static void answerWithCopy(QDropEvent& event);

    /// The text has changed. When that wasn't the layer's doing, an assistive tool has set it past all keys.
    void contentChanged();
    virtual bool isOwnDoing() const;

private:
    virtual QWidget& self() = 0;
    virtual void setContent(const QString& text) = 0;
    virtual void setSelection(int start, int length) = 0;
    virtual void insertText(const QString& text) = 0; ///< over what is selected
    virtual void removeBack() = 0;
    virtual void copySelected() = 0;
    virtual void placeCaret(const QPoint& position) = 0;
    virtual void toolkitKey(QKeyEvent& event) = 0;
    virtual void toolkitInput(QInputMethodEvent& event) = 0;

    void byToolkit(const ToolkitStep& act);
    bool isPlain() const;
    bool isPassedOver(const QKeyEvent& event) const;
    int codeOf(const QKeyEvent& event) const;
    bool takesCharacter(int character);
    bool inserts(const QString& text);
    void takeText(const QString& text);
    static QString clipboardText(QClipboard::Mode mode);
    void takeOneByOne(const QString& text);
    QString cleaned(const QString& text) const;
    qsizetype ceiling() const;
    QString fitting(const QString& wanted) const;
    void replaceByUser(const QString& text);
    bool refusesDelete();
    void removeByUser();
    void cutByUser();

    TextEntry& box_;
    const Lines lines_;
    QString known_; // the text that has come in by the layer
    QPointF pressedAt_;
    bool pressed_ = false; // by a press that has reached the box
    bool isSecondPress_ = false; // of a double click
    bool steady_ = false; // true until the mouse has really moved after the press that brought the focus
};

} // namespace forms
