// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/controls/text_box.h"

#include "platform/forms/controls/entry.h"
#include "platform/forms/controls/line_edit.h"
#include "platform/forms/controls/memo_edit.h"
#include "platform/forms/looks/theme.h"
#include "platform/forms/screens/form.h"

#include <QTextDocument>

namespace forms {

// ---- what all boxes have

QString TextEntry::text() const
{
    return entry()->content();
}

void TextEntry::setText(const QString& text)
{
    if (entry()->content() == text)
        return;
    entry()->put(text);
    Change.fire();
}

void TextEntry::setLocked(bool locked)
{
    entry()->setLocked(locked);
}

bool TextEntry::isLocked() const
{
    return entry()->isLocked();
}

int TextEntry::selectionStart() const
{
    return entry() ? entry()->selectionStart() : 0;
}

void TextEntry::setSelectionStart(int position)
{
    if (entry())
        entry()->select(position, 0);
}

int TextEntry::selectionLength() const
{
    return entry() ? static_cast<int>(entry()->selectedText().size()) : 0;
}

void TextEntry::setSelectionLength(int length)
{
    if (entry())
        entry()->select(selectionStart(), length);
}

void TextEntry::selectAll()
{
    setSelectionStart(0);
    setSelectionLength(static_cast<int>(text().size()));
}

void TextEntry::hasLostFocus()
{
    setSelectionStart(0);
}

// ---- one line

TextBox::TextBox(Form& form, const QString& name)
    : TextEntry(form, name)
    , edit_(new LineEdit(form.canvas(), *this))
{
    adopt(edit_);
}

Entry* TextBox::entry() const
{
    return edit_;
}

void TextBox::setText(const QString& text)
{
    edit_->tellWhole(text);
    TextEntry::setText(text);
}

void TextBox::setToldWhole(bool told)
{
    edit_->setToldWhole(told);
}

void TextBox::setAlignment(Alignment alignment)
{
    const Qt::Alignment horizontal = alignment == Alignment::Left ? Qt::AlignLeft
        : alignment == Alignment::Right                           ? Qt::AlignRight
                                                                  : Qt::AlignHCenter;
    edit_->setAlignment(horizontal | Qt::AlignVCenter);
}

void TextBox::setWidthInCharacters(int characters, int least)
{
    edit_->setOwnWidth(look::fieldWidth(characters), look::fieldWidth(least > 0 ? least : characters));
}

// ---- several lines

MemoBox::MemoBox(Form& form, const QString& name)
    : TextEntry(form, name)
    , edit_(new MemoEdit(form.canvas(), *this))
{
    adopt(edit_);
}

Entry* MemoBox::entry() const
{
    return edit_;
}

void MemoBox::setSizeInCharacters(int characters, int lines, int least)
{
    const int around = 2 * (edit_->frameWidth() + static_cast<int>(edit_->document()->documentMargin()));
    edit_->setOwnWidth(look::fieldWidth(characters), look::fieldWidth(least > 0 ? least : characters));
    edit_->setFixedHeight(edit_->fontMetrics().lineSpacing() * lines + around);
}

} // namespace forms
