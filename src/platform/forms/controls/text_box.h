// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/screens/control.h"

namespace forms {

class Entry;
class LineEdit;
class MemoEdit;

enum class Alignment { Left, Centre, Right };

/// What boxes with an entry have in common: text, limit, lock, caret and selection. Whatever way a text gets in by the
/// user's hand, it goes character by character through KeyPress and then through the limit. Positions and lengths count
/// UTF-16 units, as QString does; a surrogate pair is never cut.
class TextEntry : public Control {
public:
    virtual QString text() const;

    /// Replaces the text, whatever the limit and the lock say, and shows it from its beginning. Change has run on
    /// return; the same text again is no change.
    virtual void setText(const QString& text);

    /// The most characters that the user can get in; 0 sets no limit of its own.
    void setMaxLength(int characters) { maxLength_ = characters; }
    int maxLength() const { return maxLength_; }

    /// A locked box shows and copies its text and takes no input.
    virtual void setLocked(bool locked);
    virtual bool isLocked() const;

    /// Where the selection begins, or the caret where nothing is selected. Setting it drops the selection.
    int selectionStart() const;
    void setSelectionStart(int position);

    /// How much is selected behind the start; a length past the end is cut at the end.
    int selectionLength() const;
    void setSelectionLength(int length);

    void selectAll();

    /// The Delete key and what does its work (cut, the menu, an assistive tool) take nothing out then.
    void setDeleteRefused(bool refused) { deleteRefused_ = refused; }
    bool isDeleteRefused() const { return deleteRefused_; }

    Event<> Change{path(), "Change"}; ///< once for each change of the text, typed or set

protected:
    using Control::Control;

    /// The toolkit's entry, or null in a box whose text is always one of a list.
    virtual Entry* entry() const = 0;

private:
    /// A long text shows its beginning again.
    void hasLostFocus() override;

    int maxLength_ = 0;
    bool deleteRefused_ = false;
};

/// A text box of one line. A text too long for it ends in an ellipsis while the focus is elsewhere.
class TextBox : public TextEntry {
public:
    TextBox(Form& form, const QString& name);

    void setText(const QString& text) override;

    void setAlignment(Alignment alignment);

    /// Makes the box wide enough for so many average characters; `least` where the desktop has no room for more, and 0
    /// for a box that never gives any up.
    void setWidthInCharacters(int characters, int least = 0);

    /// For a box that nobody types into: its tool tip tells the whole of a text that is too long for it.
    void setToldWhole(bool told);

private:
    Entry* entry() const override;

    LineEdit* edit_;
};

/// A text box of several lines with a vertical scroll bar. Enter begins a new line.
class MemoBox : public TextEntry {
public:
    MemoBox(Form& form, const QString& name);

    /// Makes the box so many average characters wide, and `least` as for a box of one line, and so many lines high.
    void setSizeInCharacters(int characters, int lines, int least = 0);

private:
    Entry* entry() const override;

    MemoEdit* edit_;
};

} // namespace forms
