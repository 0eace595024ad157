// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/control.h"

namespace forms {

class LineEdit;
class MemoEdit;

enum class Alignment { Left, Centre, Right };

/// What boxes with an entry have in common: text, limit, lock, caret and selection. Whatever way a text gets in by the
/// user's hand, it goes character by character through KeyPress and then through the limit. Positions and lengths count
/// UTF-16 units, as QString does; a surrogate pair is never cut.
class TextEntry : public Control {
public:
    virtual QString text() const = 0;

    /// Replaces the text, whatever the limit and the lock say. Change has run on return; the same text again is no
    /// change.
    virtual void setText(const QString& text) = 0;

    /// The most characters that the user can get in; 0 sets no limit of its own.
    void setMaxLength(int characters) { maxLength_ = characters; }
    int maxLength() const { return maxLength_; }

    /// A locked box shows and copies its text and takes no input.
    virtual void setLocked(bool locked) = 0;
    virtual bool isLocked() const = 0;

    /// Where the selection begins, or the caret where nothing is selected. Setting it drops the selection.
    virtual int selectionStart() const = 0;
    virtual void setSelectionStart(int position) = 0;

    /// How much is selected behind the start; a length past the end is cut at the end.
    virtual int selectionLength() const = 0;
    virtual void setSelectionLength(int length) = 0;

    void selectAll();

    /// The Delete key and what does its work (cut, the menu, an assistive tool) take nothing out then.
    void setDeleteRefused(bool refused) { deleteRefused_ = refused; }

    Event<> Change{path(), "Change"}; ///< once for each change of the text, typed or set

protected:
    using Control::Control;

    friend class EntryKeys;

private:
    int maxLength_ = 0;
    bool deleteRefused_ = false;
};

/// A text box of one line.
class TextBox : public TextEntry {
public:
    TextBox(Form& form, const QString& name);

    QString text() const override;
    void setText(const QString& text) override;
    void setLocked(bool locked) override;
    bool isLocked() const override;
    int selectionStart() const override;
    void setSelectionStart(int position) override;
    int selectionLength() const override;
    void setSelectionLength(int length) override;

    void setAlignment(Alignment alignment);

    /// Makes the box wide enough for so many average characters.
    void setWidthInCharacters(int characters);

    /// For a box of fixed width: a text too long for it ends in an ellipsis, but while the box has the focus, and
    /// stands whole in the tool tip.
    void setElided(bool elided);

private:
    LineEdit* edit_;
};

/// A text box of several lines with a vertical scroll bar. Enter begins a new line.
class MemoBox : public TextEntry {
public:
    MemoBox(Form& form, const QString& name);

    QString text() const override;
    void setText(const QString& text) override;
    void setLocked(bool locked) override;
    bool isLocked() const override;
    int selectionStart() const override;
    void setSelectionStart(int position) override;
    int selectionLength() const override;
    void setSelectionLength(int length) override;

    /// Makes the box so many average characters wide and so many lines high.
    void setSizeInCharacters(int characters, int lines);

private:
    MemoEdit* edit_;
};

} // namespace forms
