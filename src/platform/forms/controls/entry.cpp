// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/controls/entry.h"

#include "platform/forms/input/keyboard.h"
#include "platform/forms/runtime/boundary.h"
#include "platform/forms/screens/form.h"
#include "platform/forms/screens/stage.h"

#include <QAccessible>
#include <QApplication>
#include <QInputMethodEvent>
#include <QTextDocument>

#include <algorithm>
#include <limits>
#include <optional>

namespace forms {

namespace {

constexpr qsizetype longestLine = 32767; // of what a user can get into one line

qsizetype countOf(const QString& text)
{
    return std::count_if(text.begin(), text.end(), [](QChar unit) { return !unit.isLowSurrogate(); });
}

bool takesBack(const QKeyEvent& event)
{
    return event.matches(QKeySequence::Undo) || event.matches(QKeySequence::Redo);
}

// A key that takes out a word, the rest of a line, or what was typed.
bool takesOutMore(const QKeyEvent& event)
{
    return takesBack(event) || event.matches(QKeySequence::DeleteStartOfWord)
        || event.matches(QKeySequence::DeleteEndOfWord) || event.matches(QKeySequence::DeleteEndOfLine)
        || event.matches(QKeySequence::DeleteCompleteLine)
        || (event.key() == Qt::Key_Backspace && Keyboard::isCommand(event));
}

/// Nothing is told to assistive tools. A screen reader says nothing of a text that is set where the focus isn't, and it
/// passes over what it has to say when a hundred of them come at once.
class Silence {
public:
    Silence()
        : before_(QAccessible::installUpdateHandler([](QAccessibleEvent*) {}))
    {
    }
    ~Silence() { QAccessible::installUpdateHandler(before_); }
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;

private:
    const QAccessible::UpdateHandler before_;
};

/// Lines and cells stay words of their own; the end behind the last one, which comes with a row of a table, is nothing.
QString asOneLine(QString text)
{
    return text.replace(u'\t', u'\n').split(u'\n', Qt::SkipEmptyParts).join(u' ');
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

QString asToolTip(const QString& text)
{
    return Qt::mightBeRichText(text) ? QStringLiteral("<qt>%1</qt>").arg(text.toHtmlEscaped()) : text;
}

Entry::Entry(TextEntry& box, Lines lines)
    : box_(box)
    , lines_(lines)
{
}

// ---- the text

void Entry::select(int start, int length)
{
    const auto size = static_cast<int>(content().size());
    const int from = std::clamp(start, 0, size);
    const ToolkitCall call;
    setSelection(from, std::clamp(length, 0, size - from));
}

void Entry::put(const QString& text)
{
    const ToolkitCall call;
    std::optional<Silence> silence;
    if (!box_.hasFocus())
        silence.emplace();
    setContent(text);
    setSelection(0, 0);
}

void Entry::byToolkit(const ToolkitStep& act)
{
    const QString before = content();
    {
        const ToolkitCall call;
        act();
    }
    if (content() != before)
        box_.Change.fire();
}

bool Entry::isOwnDoing() const
{
    return insideToolkitCall();
}

void Entry::contentChanged()
{
    if (isOwnDoing())
        known_ = content();
    else
        fromToolkit([this] { replaceByUser(content()); });
}

void Entry::replaceByUser(const QString& wanted)
{
    put(known_);
    if (!box_.isEnabled())
        return;
    select(0, static_cast<int>(known_.size()));
    if (wanted.isEmpty())
        removeByUser();
    else
        takeText(wanted);
}

// ---- what gets in

QString Entry::clipboardText(QClipboard::Mode mode)
{
    return QGuiApplication::clipboard()->text(mode);
}

qsizetype Entry::ceiling() const
{
    return lines_ == Lines::One ? longestLine : std::numeric_limits<int>::max();
}

QString Entry::fitting(const QString& wanted) const
{
    const QString text = content();
    const QString replaced = selectedText(); // makes room
    qsizetype room = ceiling() - (text.size() - replaced.size());
    qsizetype characters = std::numeric_limits<qsizetype>::max();
    if (box_.maxLength() > 0)
        characters = box_.maxLength() - (countOf(text) - countOf(replaced));
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

bool Entry::inserts(const QString& wanted)
{
    const QString fits = fitting(wanted);
    if (!fits.isEmpty())
        byToolkit([this, &fits] { insertText(fits); });
    return !fits.isEmpty();
}

// False for a character that has left the text as it was.
bool Entry::takesCharacter(int character)
{
    const int code = Keyboard::press(box_, character);
    if (code == key::Refused || isLocked())
        return false;
    if (code == key::Backspace) {
        byToolkit([this] { removeBack(); });
        return true;
    }
    if (code == key::Enter && lines_ == Lines::Several)
        return inserts(QStringLiteral("\n"));
    return isTextCharacter(code) && inserts(textOf(code));
}

QString Entry::cleaned(const QString& text) const
{
    QString ends = text;
    ends.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
    ends.replace(QChar::LineSeparator, u'\n').replace(QChar::ParagraphSeparator, u'\n');
    ends = lines_ == Lines::One ? asOneLine(ends) : ends.replace(u'\t', u' ');
    QString clean;
    for (const uint character : ends.toUcs4()) {
        if (character == '\n' || isTextCharacter(static_cast<int>(character)))
            clean += textOf(static_cast<int>(character));
    }
    return clean;
}

void Entry::takeText(const QString& wanted)
{
    if (!isPlain())
        takeOneByOne(cleaned(wanted)); // through a locked box too, since a handler may unlock it
    else if (!isLocked())
        inserts(cleaned(wanted));
}

// What is left is dropped when a handler moves the focus away, shows a box or brings another screen forward, when a
// character finds the box full, and behind as many as a line can hold: a box whose handlers let nothing stay is never
// full.
void Entry::takeOneByOne(const QString& text)
{
    const Stage& stage = Stage::instance();
    const int interruptions = stage.interruptions();
    const bool focused = box_.hasFocus();
    const auto characters = text.toUcs4();
    for (const uint character : characters.first(std::min(characters.size(), ceiling()))) {
        const bool isIn = takesCharacter(character == '\n' ? key::Enter : static_cast<int>(character));
        if (stage.interruptions() != interruptions || box_.hasFocus() != focused)
            return;
        if (!isIn && fitting(QStringLiteral("x")).isEmpty())
            return;
    }
}

// ---- what gets out

// When KeyDown refuses the Delete key, no text can be taken out by the menu or Ctrl+X either.
bool Entry::refusesDelete()
{
    const QKeyEvent stroke(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
    return box_.isDeleteRefused() || Keyboard::down(box_, stroke);
}

void Entry::removeByUser()
{
    if (!isLocked() && !refusesDelete())
        byToolkit([this] { insertText({}); });
}

void Entry::cutByUser()
{
    if (isLocked() || selectedText().isEmpty() || refusesDelete())
        return;
    copySelected();
    byToolkit([this] { insertText({}); });
}

// ---- keys

void Entry::keyPressed(QKeyEvent& event)
{
    fromToolkit([this, &event] { handleKey(event); });
    event.accept();
}

void Entry::handleKey(QKeyEvent& event)
{
    // The default button answers before the box sees the key; in a box of several lines Enter begins a line.
    if (lines_ == Lines::One && Keyboard::pressDefault(box_.form(), event))
        return;
    if (Keyboard::down(box_, event) || isPassedOver(event))
        return;
    if (event.matches(QKeySequence::Cut)) {
        cutByUser();
    } else if (event.matches(QKeySequence::Paste)) {
        const bool ofSelection = event.key() == Qt::Key_Insert && (event.modifiers() & Qt::ControlModifier);
        takeText(clipboardText(ofSelection ? QClipboard::Selection : QClipboard::Clipboard));
    } else if (const int code = codeOf(event)) {
        takesCharacter(code);
    } else if (Keyboard::hasText(event)) {
        for (const uint character : event.text().toUcs4())
            takesCharacter(static_cast<int>(character));
    } else if (!takesOutMore(event) || !refusesDelete()) {
        byToolkit([this, &event] { toolkitKey(event); });
    }
}

// Whether what is typed changes the text and nothing else.
bool Entry::isPlain() const
{
    return !box_.KeyPress && !box_.Change;
}

// What handlers have let in is not taken back behind them, an access key that nothing on the screen has is no text, and
// Alt+Tab is the window manager's.
bool Entry::isPassedOver(const QKeyEvent& event) const
{
    const bool isTab = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
    const bool isStrange = Keyboard::isCommand(event) && (isTab || Keyboard::hasText(event));
    return isStrange || (takesBack(event) && !isPlain()) || (box_.isDeleteRefused() && event.key() == Qt::Key_Delete);
}

// The character of a key that types none; 0 for all others.
int Entry::codeOf(const QKeyEvent& event) const
{
    if (Keyboard::isEnter(event))
        return key::Enter;
    if (event.key() == Qt::Key_Escape)
        return key::Escape;
    return event.key() == Qt::Key_Backspace && !Keyboard::isCommand(event) ? key::Backspace : 0;
}

void Entry::keyReleased(QKeyEvent& event, const ToolkitStep& step)
{
    {
        const ToolkitCall call;
        step();
    }
    fromToolkit([this, &event] { Keyboard::up(box_, event); });
    event.accept();
}

void Entry::composed(QInputMethodEvent& event)
{
    fromToolkit([this, &event] {
        QInputMethodEvent composing(event.preeditString(), event.attributes());
        composing.setCommitString({}, event.replacementStart(), event.replacementLength());
        // Composing takes out what is selected, before any handler has seen the character.
        if (!isLocked() && !box_.KeyPress)
            byToolkit([this, &composing] { toolkitInput(composing); });
        takeText(event.commitString());
    });
    event.accept();
}

} // namespace forms
