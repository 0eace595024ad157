// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/entry_keys.h"

#include "platform/forms/boundary.h"
#include "platform/forms/form.h"
#include "platform/forms/keyboard.h"
#include "platform/forms/stage.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QPointer>
#include <QStyle>
#include <QStyleHints>
#include <QStyleOptionFrame>

#include <limits>

namespace forms {

namespace {

constexpr qsizetype longestLine = 32767; // of what a user can get into one line

qsizetype countOf(const QString& text)
{
    qsizetype characters = 0;
    for (const QChar unit : text)
        if (!unit.isLowSurrogate())
            ++characters;
    return characters;
}

} // namespace

bool isTextCharacter(int character)
{
    return character >= 32 && character != 127 && !(character >= 0x80 && character < 0xA0) && character != 0x2028
        && character != 0x2029;
}

QString textOf(int character)
{
    const auto code = static_cast<char32_t>(character);
    return QString::fromUcs4(&code, 1);
}

QString EntryKeys::fitting(
    const TextEntry& box, const QString& text, const QString& replaced, const QString& wanted, qsizetype ceiling)
{
    qsizetype room = ceiling - (text.size() - replaced.size());
    qsizetype characters = std::numeric_limits<qsizetype>::max();
    if (box.maxLength() > 0)
        characters = box.maxLength() - (countOf(text) - countOf(replaced));
    qsizetype taken = 0;
    while (taken < wanted.size()) {
        const qsizetype units = wanted.at(taken).isHighSurrogate() && taken + 1 < wanted.size() ? 2 : 1;
        if (characters < 1 || room < units)
            break;
        --characters;
        room -= units;
        taken += units;
    }
    return wanted.left(taken);
}

void EntryKeys::typeAll(TextEntry& box, const QString& text, const std::function<void(int)>& take)
{
    const Stage& stage = Stage::instance();
    const int interruptions = stage.interruptions();
    const bool focused = box.hasFocus();
    for (const uint character : text.toUcs4()) {
        take(static_cast<int>(character));
        if (stage.interruptions() != interruptions || box.hasFocus() != focused)
            return;
    }
}

bool EntryKeys::takesOutMore(const QKeyEvent& event)
{
    return event.matches(QKeySequence::DeleteStartOfWord) || event.matches(QKeySequence::DeleteEndOfWord)
        || event.matches(QKeySequence::DeleteEndOfLine) || event.matches(QKeySequence::DeleteCompleteLine)
        || (event.key() == Qt::Key_Backspace && Keyboard::isCommand(event));
}

bool EntryKeys::refusesDelete(TextEntry& box)
{
    const QKeyEvent stroke(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
    return box.deleteRefused_ || Keyboard::down(box, stroke);
}

bool EntryKeys::keepsDelete(const TextEntry& box, const QKeyEvent& event)
{
    return box.deleteRefused_ && event.key() == Qt::Key_Delete;
}

void EntryKeys::catchUp(TextEntry& box)
{
    box.focusAwaitsPress_ = false;
    box.form().moveFocus(&box);
}

void EntryKeys::showMenu(QWidget* parent, const QPoint& at, const MenuCommands& commands)
{
    QMenu menu(parent);
    const auto add = [&menu](const QString& caption, const std::function<void()>& command, bool enabled) {
        QAction* action = menu.addAction(caption);
        action->setEnabled(enabled);
        return std::pair(action, command);
    };
    const bool changeable = !commands.locked;
    const std::pair<QAction*, std::function<void()>> actions[] = {
        add(QStringLiteral("Cu&t"), commands.cut, commands.selected && changeable),
        add(QStringLiteral("&Copy"), commands.copy, commands.selected),
        add(QStringLiteral("&Paste"), commands.paste, changeable),
        add(QStringLiteral("&Delete"), commands.remove, commands.selected && changeable),
        add(QStringLiteral("Select &All"), commands.selectAll, true),
    };
    const QPointer<QWidget> alive(parent);
    const QAction* chosen = menu.exec(at);
    if (!alive || !chosen)
        return;
    for (const auto& [action, command] : actions)
        if (action == chosen)
            command();
}

LineEdit::LineEdit(QWidget* parent, TextEntry& box)
    : QLineEdit(parent)
    , box_(box)
{
    setMaxLength(std::numeric_limits<int>::max());
    setTextMargins(3, 1, 3, 1);
}

void LineEdit::put(const QString& text)
{
    const ToolkitCall call;
    setText(text);
    setCursorPosition(0); // a text that code has set is shown from its beginning
}

void LineEdit::byToolkit(const std::function<void()>& act)
{
    const QString before = text();
    {
        const ToolkitCall call;
        act();
    }
    if (text() != before)
        EntryKeys::changed(box_);
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

bool LineEdit::fits() const
{
    return fontMetrics().horizontalAdvance(text()) <= room().width();
}

void LineEdit::paintEvent(QPaintEvent* event)
{
    if (!elided_ || hasFocus() || fits()) {
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

// ---- what gets in

void LineEdit::takeCharacter(int character)
{
    const int code = Keyboard::press(box_, character);
    if (code == key::Refused || isReadOnly())
        return;
    if (code == key::Backspace)
        byToolkit([this] { backspace(); });
    else if (isTextCharacter(code))
        insertFitting(textOf(code));
}

void LineEdit::insertFitting(const QString& wanted)
{
    const QString fits = EntryKeys::fitting(box_, text(), selectedText(), wanted, longestLine);
    if (!fits.isEmpty())
        byToolkit([this, &fits] { insert(fits); });
}

void LineEdit::takeText(const QString& wanted)
{
    if (!EntryKeys::takesWhole(box_)) {
        // Through a locked box too, since a handler may unlock it.
        EntryKeys::typeAll(box_, wanted, [this](int character) {
            if (isTextCharacter(character))
                takeCharacter(character);
        });
        return;
    }
    if (isReadOnly())
        return;
    QString clean;
    clean.reserve(wanted.size());
    for (const uint character : wanted.toUcs4())
        if (isTextCharacter(static_cast<int>(character)))
            clean += textOf(static_cast<int>(character));
    insertFitting(clean);
}

void LineEdit::cutByUser()
{
    if (!isReadOnly() && !EntryKeys::refusesDelete(box_))
        byToolkit([this] { cut(); });
}

void LineEdit::deleteByUser()
{
    if (!isReadOnly() && !EntryKeys::refusesDelete(box_))
        byToolkit([this] { del(); });
}

// ---- keys

void LineEdit::keyPressEvent(QKeyEvent* event)
{
    fromToolkit([this, event] { handleKey(*event); });
    event->accept();
}

void LineEdit::handleKey(QKeyEvent& event)
{
    if (EntryKeys::awaitsPress(box_))
        EntryKeys::catchUp(box_);
    // The default button answers before the box sees the key.
    if (Keyboard::isEnter(event) && Keyboard::pressDefault(box_.form()))
        return;
    if (Keyboard::down(box_, event))
        return;
    if (EntryKeys::keepsDelete(box_, event))
        return;
    if (event.matches(QKeySequence::Undo) || event.matches(QKeySequence::Redo))
        return; // what the handlers have let in is not taken back behind them
    if (event.matches(QKeySequence::Cut)) {
        cutByUser();
    } else if (event.matches(QKeySequence::Paste)) {
        const bool selection = event.key() == Qt::Key_Insert && (event.modifiers() & Qt::ControlModifier);
        takeText(QGuiApplication::clipboard()->text(selection ? QClipboard::Selection : QClipboard::Clipboard));
    } else if (Keyboard::isEnter(event)) {
        Keyboard::press(box_, key::Enter);
    } else if (event.key() == Qt::Key_Escape) {
        Keyboard::press(box_, key::Escape);
    } else if (event.key() == Qt::Key_Backspace && !Keyboard::isCommand(event)) {
        takeCharacter(key::Backspace);
    } else if (Keyboard::hasText(event)) {
        if (Keyboard::isCommand(event))
            return; // an access key that nothing on the screen has
        for (const uint character : event.text().toUcs4())
            takeCharacter(static_cast<int>(character));
    } else if (!EntryKeys::takesOutMore(event) || !EntryKeys::refusesDelete(box_)) {
        byToolkit([this, &event] { QLineEdit::keyPressEvent(&event); });
    }
}

void LineEdit::keyReleaseEvent(QKeyEvent* event)
{
    {
        const ToolkitCall call;
        QLineEdit::keyReleaseEvent(event);
    }
    fromToolkit([this, event] { Keyboard::up(box_, *event); });
    event->accept();
}

void LineEdit::inputMethodEvent(QInputMethodEvent* event)
{
    fromToolkit([this, event] {
        QInputMethodEvent composing(event->preeditString(), event->attributes());
        composing.setCommitString({}, event->replacementStart(), event->replacementLength());
        // Composing takes out what is selected, before any handler has seen the character.
        if (!box_.KeyPress)
            byToolkit([this, &composing] { QLineEdit::inputMethodEvent(&composing); });
        takeText(event->commitString());
    });
    event->accept();
}

// ---- mouse

void LineEdit::focusInEvent(QFocusEvent* event)
{
    EntryKeys::awaitPress(box_, event->reason() == Qt::MouseFocusReason && !insideToolkitCall());
    const ToolkitCall call;
    QLineEdit::focusInEvent(event);
}

void LineEdit::mousePressEvent(QMouseEvent* event)
{
    // A box that opened while the button was down has taken the release.
    if (!(QGuiApplication::mouseButtons() & event->button())) {
        event->accept();
        return;
    }
    fromToolkit([this, event] {
        {
            const ToolkitCall call;
            QLineEdit::mousePressEvent(event);
        }
        steady_ = EntryKeys::awaitsPress(box_);
        focusingPress_ = event->position();
        if (steady_)
            EntryKeys::catchUp(box_);
        if (event->button() == Qt::LeftButton)
            EntryKeys::mouseDown(box_);
    });
}

void LineEdit::mouseMoveEvent(QMouseEvent* event)
{
    const auto distance = (event->position() - focusingPress_).manhattanLength();
    if (steady_ && distance < QGuiApplication::styleHints()->startDragDistance())
        return; // a trembling hand must not undo what GotFocus has selected
    steady_ = false;
    const ToolkitCall call;
    QLineEdit::mouseMoveEvent(event);
}

void LineEdit::mouseReleaseEvent(QMouseEvent* event)
{
    steady_ = false;
    fromToolkit([this, event] {
        if (event->button() == Qt::MiddleButton) {
            takeText(QGuiApplication::clipboard()->text(QClipboard::Selection));
            return;
        }
        {
            const ToolkitCall call;
            QLineEdit::mouseReleaseEvent(event);
        }
        if (event->button() != Qt::LeftButton)
            return;
        EntryKeys::mouseUp(box_);
        const bool ofCombo = box_.widget() != this; // whose Click is the pick of an item
        if (!ofCombo && rect().contains(event->position().toPoint()))
            EntryKeys::clicked(box_);
    });
    event->accept();
}

void LineEdit::mouseDoubleClickEvent(QMouseEvent* event)
{
    fromToolkit([this, event] {
        {
            const ToolkitCall call;
            QLineEdit::mouseDoubleClickEvent(event);
        }
        EntryKeys::doubleClicked(box_);
    });
}

void LineEdit::contextMenuEvent(QContextMenuEvent* event)
{
    fromToolkit([this, event] {
        EntryKeys::showMenu(this, event->globalPos(),
            {[this] { cutByUser(); }, [this] { copy(); }, [this] { takeText(QGuiApplication::clipboard()->text()); },
                [this] { deleteByUser(); }, [this] { selectAll(); }, hasSelectedText(), isReadOnly()});
    });
    event->accept();
}

void LineEdit::dropEvent(QDropEvent* event)
{
    fromToolkit([this, event] {
        {
            const ToolkitCall call;
            setCursorPosition(cursorPositionAt(event->position().toPoint()));
        }
        box_.setFocus();
        takeText(event->mimeData()->text());
    });
    event->setDropAction(Qt::CopyAction); // the source keeps its text
    event->accept();
}

} // namespace forms
