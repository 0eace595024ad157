// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/user.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QTest>
#include <QWidget>
#include <QWindow>

#include <stdexcept>

namespace user {

namespace {

QString textOf(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    if (key >= Qt::Key_A && key <= Qt::Key_Z && (modifiers & Qt::ControlModifier))
        return QChar(key - Qt::Key_A + 1); // the control character of the letter, as keyboards give it
    if (key >= Qt::Key_A && key <= Qt::Key_Z && (modifiers & Qt::ShiftModifier))
        return QChar(key);
    if (key >= Qt::Key_F1 && key <= Qt::Key_F35)
        return {};
    const char character = QTest::keyToAscii(key);
    return character ? QString(QLatin1Char(character)) : QString();
}

void goDown(Qt::Key key, const QString& text, Qt::KeyboardModifiers modifiers)
{
    settle();
    QTest::sendKeyEvent(QTest::Press, &frontWindow(), key, text, modifiers);
}

// The release goes to whatever window is in front by then.
void goUp(Qt::Key key, const QString& text, Qt::KeyboardModifiers modifiers)
{
    if (QGuiApplication::focusWindow() || forms::activeForm())
        QTest::sendKeyEvent(QTest::Release, &frontWindow(), key, text, modifiers);
}

void stroke(Qt::Key key, const QString& text, Qt::KeyboardModifiers modifiers)
{
    goDown(key, text, modifiers);
    goUp(key, text, modifiers);
}

void typeCharacter(char32_t character)
{
    if (character == U'\n')
        return press(Qt::Key_Return);
    if (character == U'\t')
        return tab();
    const QString text = QString::fromUcs4(&character, 1);
    if (character > 0xFFFF)
        return commit(text); // no keyboard has a key for it
    const QChar unit = text.at(0);
    stroke(Qt::Key(unit.toUpper().unicode()), text, unit.isUpper() ? Qt::ShiftModifier : Qt::NoModifier);
}

} // namespace

QWindow& frontWindow()
{
    QWidget* front = QApplication::activePopupWidget();
    if (!front)
        front = QApplication::activeModalWidget();
    if (!front && forms::activeForm())
        front = forms::activeForm()->window();
    QWindow* window = front ? front->windowHandle() : QGuiApplication::focusWindow();
    if (!window)
        throw std::logic_error("No window is in front to take a key");
    return *window;
}

void settle()
{
    QCoreApplication::processEvents();
}

void type(const QString& text)
{
    for (const uint character : text.toUcs4())
        typeCharacter(character);
}

void type(forms::Control& control, const QString& text)
{
    if (!control.hasFocus())
        click(control);
    type(text);
}

void press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    stroke(key, textOf(key, modifiers), modifiers);
}

void hold(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    goDown(key, textOf(key, modifiers), modifiers);
}

void repeat(Qt::Key key, Qt::KeyboardModifiers modifiers, int times)
{
    for (; times > 0; --times)
        for (const bool down : {false, true})
            QTest::simulateEvent(&frontWindow(), down, key, modifiers, textOf(key, modifiers), true, 1);
}

void letGo(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    goUp(key, textOf(key, modifiers), modifiers);
}

void tab()
{
    press(Qt::Key_Tab);
}

void backTab()
{
    stroke(Qt::Key_Backtab, QStringLiteral("\t"), Qt::ShiftModifier);
}

void accessKey(char letter)
{
    press(QTest::asciiToKey(letter), Qt::AltModifier);
}

void paste(const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
    press(Qt::Key_V, Qt::ControlModifier);
}

void pasteByShiftInsert(const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
    press(Qt::Key_Insert, Qt::ShiftModifier);
}

void commit(const QString& text)
{
    settle();
    QObject* target = QGuiApplication::focusObject();
    if (!target)
        throw std::logic_error("Nothing has the focus to take a composed text");
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(target, &event);
    settle();
}

void setByAssistant(forms::Control& control, const QString& text)
{
    QWidget* widget = control.widget();
    auto* line = widget->findChild<QLineEdit*>(); // of a combo box
    QAccessible::queryAccessibleInterface(line ? line : widget)->setText(QAccessible::Value, text);
}

} // namespace user
