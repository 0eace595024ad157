// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/text_box.h"

#include "platform/forms/boundary.h"
#include "platform/forms/entry_keys.h"
#include "platform/forms/form.h"
#include "platform/forms/keyboard.h"
#include "platform/forms/look.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QPlainTextEdit>

#include <algorithm>
#include <limits>

namespace forms {

void TextEntry::selectAll()
{
    setSelectionStart(0);
    setSelectionLength(static_cast<int>(text().size()));
}

// ---- one line

TextBox::TextBox(Form& form, const QString& name)
    : TextEntry(form, name)
    , edit_(new LineEdit(form.canvas(), *this))
{
    adopt(edit_);
    // Assistive tools set a text past all keys.
    QObject::connect(edit_, &QLineEdit::textChanged, edit_, [this] {
        if (!insideToolkitCall())
            fromToolkit([this] { EntryKeys::changed(*this); });
    });
}

QString TextBox::text() const
{
    return edit_->text();
}

void TextBox::setText(const QString& text)
{
    if (edit_->text() == text)
        return;
    edit_->put(text);
    if (edit_->isElided())
        setToolTip(edit_->fits() ? QString() : text);
    EntryKeys::changed(*this);
}

void TextBox::setElided(bool elided)
{
    edit_->setElided(elided);
}

void TextBox::setLocked(bool locked)
{
    edit_->setReadOnly(locked);
}

bool TextBox::isLocked() const
{
    return edit_->isReadOnly();
}

int TextBox::selectionStart() const
{
    return edit_->hasSelectedText() ? edit_->selectionStart() : edit_->cursorPosition();
}

void TextBox::setSelectionStart(int position)
{
    const ToolkitCall call;
    edit_->deselect();
    edit_->setCursorPosition(position);
}

int TextBox::selectionLength() const
{
    return edit_->hasSelectedText() ? edit_->selectionLength() : 0;
}

void TextBox::setSelectionLength(int length)
{
    const int start = selectionStart();
    const int fits = std::min(length, static_cast<int>(edit_->text().size()) - start);
    const ToolkitCall call;
    if (fits > 0)
        edit_->setSelection(start, fits);
    else
        edit_->setCursorPosition(start);
}

void TextBox::setAlignment(Alignment alignment)
{
    const Qt::Alignment horizontal = alignment == Alignment::Left ? Qt::AlignLeft
        : alignment == Alignment::Right                           ? Qt::AlignRight
                                                                  : Qt::AlignHCenter;
    edit_->setAlignment(horizontal | Qt::AlignVCenter);
}

void TextBox::setWidthInCharacters(int characters)
{
    edit_->setFixedWidth(look::fieldWidth(characters));
}

// ---- several lines

class MemoEdit : public QPlainTextEdit {
public:
    MemoEdit(QWidget* parent, TextEntry& box)
        : QPlainTextEdit(parent)
        , box_(box)
    {
        setUndoRedoEnabled(false);
        setTabChangesFocus(true);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
        document()->setDocumentMargin(look::textInset() - frameWidth()); // as far in as the text of other boxes
    }

    void byToolkit(const std::function<void()>& act)
    {
        const int before = document()->revision();
        {
            const ToolkitCall call;
            act();
        }
        if (document()->revision() != before)
            EntryKeys::changed(box_);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        fromToolkit([this, event] { handleKey(*event); });
        event->accept();
    }

    void keyReleaseEvent(QKeyEvent* event) override
    {
        fromToolkit([this, event] { Keyboard::up(box_, *event); });
        event->accept();
    }

    void inputMethodEvent(QInputMethodEvent* event) override
    {
        fromToolkit([this, event] {
            QInputMethodEvent composing(event->preeditString(), event->attributes());
            composing.setCommitString({}, event->replacementStart(), event->replacementLength());
            // Composing takes out what is selected, before any handler has seen the character.
            if (!isReadOnly() && !box_.KeyPress)
                byToolkit([this, &composing] { QPlainTextEdit::inputMethodEvent(&composing); });
            takeText(event->commitString());
        });
        event->accept();
    }

    // The gate of middle click.
    void insertFromMimeData(const QMimeData* source) override
    {
        fromToolkit([this, source] { takeText(source->text()); });
    }

    bool canInsertFromMimeData(const QMimeData* source) const override { return source->hasText(); }

    void dropEvent(QDropEvent* event) override
    {
        fromToolkit([this, event] {
            {
                const ToolkitCall call;
                QDragLeaveEvent end; // the toolkit's own drop would hold the changes back until its end
                QPlainTextEdit::dragLeaveEvent(&end);
                setTextCursor(cursorForPosition(event->position().toPoint()));
            }
            box_.setFocus();
            takeText(event->mimeData()->text());
        });
        event->setDropAction(Qt::CopyAction); // the source keeps its text
        event->accept();
    }

    void focusInEvent(QFocusEvent* event) override
    {
        EntryKeys::awaitPress(box_, event->reason() == Qt::MouseFocusReason && !insideToolkitCall());
        const ToolkitCall call;
        QPlainTextEdit::focusInEvent(event);
    }

    void mousePressEvent(QMouseEvent* event) override
    {
        fromToolkit([this, event] {
            {
                const ToolkitCall call;
                // No drag begins: it would move the text out past the handlers.
                if (event->button() == Qt::LeftButton && !(event->modifiers() & Qt::ShiftModifier))
                    setTextCursor(cursorForPosition(event->position().toPoint()));
                QPlainTextEdit::mousePressEvent(event);
            }
            steady_ = EntryKeys::awaitsPress(box_);
            focusingPress_ = event->position();
            if (steady_)
                EntryKeys::catchUp(box_);
            if (event->button() == Qt::LeftButton)
                EntryKeys::mouseDown(box_);
        });
    }

    void mouseMoveEvent(QMouseEvent* event) override
    {
        const auto distance = (event->position() - focusingPress_).manhattanLength();
        if (steady_ && distance < QApplication::startDragDistance())
            return; // a trembling hand must not undo what GotFocus has selected
        steady_ = false;
        const ToolkitCall call;
        QPlainTextEdit::mouseMoveEvent(event);
    }

    void mouseReleaseEvent(QMouseEvent* event) override
    {
        steady_ = false;
        // Middle click pastes from inside the call, through insertFromMimeData().
        QPlainTextEdit::mouseReleaseEvent(event);
        if (event->button() != Qt::LeftButton)
            return;
        fromToolkit([this] {
            EntryKeys::mouseUp(box_);
            EntryKeys::clicked(box_);
        });
    }

    void mouseDoubleClickEvent(QMouseEvent* event) override
    {
        fromToolkit([this, event] {
            {
                const ToolkitCall call;
                QPlainTextEdit::mouseDoubleClickEvent(event);
            }
            EntryKeys::doubleClicked(box_);
        });
    }

    void contextMenuEvent(QContextMenuEvent* event) override
    {
        fromToolkit([this, event] {
            EntryKeys::showMenu(this, event->globalPos(),
                {[this] { takeOut([this] { cut(); }); }, [this] { copy(); },
                    [this] { takeText(QGuiApplication::clipboard()->text()); },
                    [this] { takeOut([this] { textCursor().removeSelectedText(); }); }, [this] { selectAll(); },
                    textCursor().hasSelection(), isReadOnly()});
        });
        event->accept();
    }

private:
    void handleKey(QKeyEvent& event)
    {
        if (EntryKeys::awaitsPress(box_))
            EntryKeys::catchUp(box_);
        if (Keyboard::down(box_, event) || EntryKeys::keepsDelete(box_, event))
            return;
        if (Keyboard::isEnter(event)) {
            takeCharacter(key::Enter);
        } else if (event.key() == Qt::Key_Escape) {
            Keyboard::press(box_, key::Escape);
        } else if (event.key() == Qt::Key_Backspace && !Keyboard::isCommand(event)) {
            takeCharacter(key::Backspace);
        } else if (event.matches(QKeySequence::Paste)) {
            const bool selection = event.key() == Qt::Key_Insert && (event.modifiers() & Qt::ControlModifier);
            takeText(QGuiApplication::clipboard()->text(selection ? QClipboard::Selection : QClipboard::Clipboard));
        } else if (Keyboard::hasText(event)) {
            if (Keyboard::isCommand(event))
                return; // an access key that nothing on the screen has
            for (const uint character : event.text().toUcs4())
                takeCharacter(static_cast<int>(character));
        } else if (event.matches(QKeySequence::Cut)) {
            takeOut([this] { cut(); });
        } else if (!EntryKeys::takesOutMore(event) || !EntryKeys::refusesDelete(box_)) {
            byToolkit([this, &event] { QPlainTextEdit::keyPressEvent(&event); });
        }
        ensureCursorVisible();
    }

    void takeOut(const std::function<void()>& act)
    {
        if (!isReadOnly() && !EntryKeys::refusesDelete(box_))
            byToolkit(act);
    }

    void takeCharacter(int character)
    {
        const int code = Keyboard::press(box_, character);
        if (code == key::Refused || isReadOnly())
            return;
        if (code == key::Backspace)
            byToolkit([this] { textCursor().deletePreviousChar(); });
        else if (code == key::Enter)
            insertFitting(QStringLiteral("\n"));
        else if (isTextCharacter(code))
            insertFitting(textOf(code));
    }

    void insertFitting(const QString& wanted)
    {
        const QString selected = textCursor().selectedText();
        const QString fits = EntryKeys::fitting(box_, toPlainText(), selected, wanted, std::numeric_limits<int>::max());
        if (!fits.isEmpty())
            byToolkit([this, &fits] { insertPlainText(fits); });
    }

    void takeText(QString wanted)
    {
        wanted.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
        wanted.replace(QChar::LineSeparator, u'\n').replace(QChar::ParagraphSeparator, u'\n');
        if (EntryKeys::takesWhole(box_)) {
            QString clean;
            for (const uint character : wanted.toUcs4())
                if (character == '\n' || isTextCharacter(static_cast<int>(character)))
                    clean += textOf(static_cast<int>(character));
            if (!isReadOnly())
                insertFitting(clean);
        } else {
            EntryKeys::typeAll(box_, wanted, [this](int character) {
                if (character == '\n' || isTextCharacter(character))
                    takeCharacter(character == '\n' ? key::Enter : character);
            });
        }
        ensureCursorVisible();
    }

    TextEntry& box_;
    QPointF focusingPress_;
    bool steady_ = false;
};

MemoBox::MemoBox(Form& form, const QString& name)
    : TextEntry(form, name)
    , edit_(new MemoEdit(form.canvas(), *this))
{
    adopt(edit_);
}

QString MemoBox::text() const
{
    return edit_->toPlainText();
}

void MemoBox::setText(const QString& text)
{
    if (edit_->toPlainText() == text)
        return;
    {
        const ToolkitCall call;
        edit_->setPlainText(text);
    }
    EntryKeys::changed(*this);
}

void MemoBox::setLocked(bool locked)
{
    edit_->setReadOnly(locked);
}

bool MemoBox::isLocked() const
{
    return edit_->isReadOnly();
}

int MemoBox::selectionStart() const
{
    return edit_->textCursor().selectionStart();
}

void MemoBox::setSelectionStart(int position)
{
    QTextCursor cursor = edit_->textCursor();
    cursor.setPosition(std::clamp(position, 0, static_cast<int>(edit_->toPlainText().size())));
    const ToolkitCall call;
    edit_->setTextCursor(cursor);
}

int MemoBox::selectionLength() const
{
    const QTextCursor cursor = edit_->textCursor();
    return cursor.selectionEnd() - cursor.selectionStart();
}

void MemoBox::setSelectionLength(int length)
{
    QTextCursor cursor = edit_->textCursor();
    const int start = cursor.selectionStart();
    const int end = std::clamp(start + length, start, static_cast<int>(edit_->toPlainText().size()));
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    const ToolkitCall call;
    edit_->setTextCursor(cursor);
}

void MemoBox::setSizeInCharacters(int characters, int lines)
{
    const int around = 2 * (edit_->frameWidth() + static_cast<int>(edit_->document()->documentMargin()));
    edit_->setFixedSize(look::fieldWidth(characters), edit_->fontMetrics().lineSpacing() * lines + around);
}

} // namespace forms
