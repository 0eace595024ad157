// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/input/keyboard.h"

#include "platform/forms/runtime/runtime.h"
#include "platform/forms/screens/form.h"
#include "platform/forms/screens/stage.h"

#include <QKeyEvent>

#include <algorithm>
#include <iterator>

namespace forms {

namespace {

constexpr int noVirtualKey = 255;

// The toolkit gives the Delete key a character, which it has not.
bool hasCharacter(const QKeyEvent& event)
{
    return !event.text().isEmpty() && event.key() != Qt::Key_Delete;
}

struct KeyCode {
    int toolkit;
    int code;
};

constexpr KeyCode keyCodes[] = {
    {Qt::Key_Backspace, 8},
    {Qt::Key_Tab, 9},
    {Qt::Key_Backtab, 9},
    {Qt::Key_Return, 13},
    {Qt::Key_Enter, 13},
    {Qt::Key_Shift, 16},
    {Qt::Key_Control, 17},
    {Qt::Key_Alt, 18},
    {Qt::Key_Pause, 19},
    {Qt::Key_CapsLock, 20},
    {Qt::Key_Escape, 27},
    {Qt::Key_Space, 32},
    {Qt::Key_PageUp, 33},
    {Qt::Key_PageDown, 34},
    {Qt::Key_End, 35},
    {Qt::Key_Home, 36},
    {Qt::Key_Left, 37},
    {Qt::Key_Up, 38},
    {Qt::Key_Right, 39},
    {Qt::Key_Down, 40},
    {Qt::Key_Insert, 45},
    {Qt::Key_Delete, 46},
};

} // namespace

int Keyboard::virtualKey(const QKeyEvent& event)
{
    const int toolkit = event.key();
    if ((toolkit >= Qt::Key_0 && toolkit <= Qt::Key_9) || (toolkit >= Qt::Key_A && toolkit <= Qt::Key_Z))
        return toolkit;
    if (toolkit >= Qt::Key_F1 && toolkit <= Qt::Key_F24)
        return key::F1 + (toolkit - Qt::Key_F1);
    const auto found = std::find_if(
        std::begin(keyCodes), std::end(keyCodes), [toolkit](const KeyCode& each) { return each.toolkit == toolkit; });
    return found == std::end(keyCodes) ? noVirtualKey : found->code;
}

bool Keyboard::isEnter(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool Keyboard::isCommand(const QKeyEvent& event)
{
    return (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        && !(event.modifiers() & Qt::GroupSwitchModifier);
}

bool Keyboard::hasText(const QKeyEvent& event)
{
    const QString text = event.text();
    return !text.isEmpty() && text.at(0).unicode() >= 32 && text.at(0).unicode() != 127;
}

void Keyboard::openHelpFor(const Form& form, const Control* control)
{
    const int own = control ? control->helpNumber() : 0;
    openHelp(own ? own : form.helpNumber(), form.name());
}

bool Keyboard::down(Control& control, const QKeyEvent& event)
{
    int code = virtualKey(event);
    control.KeyDown.fire(code);
    if (code == key::Refused)
        return true;
    if (code != key::F1)
        return false;
    if (!event.isAutoRepeat())
        openHelpFor(control.form(), &control);
    return true;
}

void Keyboard::up(Control& control, const QKeyEvent& event)
{
    if (event.isAutoRepeat())
        return;
    int code = virtualKey(event);
    control.KeyUp.fire(code);
}

int Keyboard::press(Control& control, int character)
{
    control.KeyPress.fire(character);
    return character;
}

bool Keyboard::pressText(Control& control, const QKeyEvent& event)
{
    if (isCommand(event))
        return true;
    if (!hasCharacter(event))
        return true;
    const auto characters = event.text().toUcs4();
    return std::all_of(characters.begin(), characters.end(),
        [&control](uint character) { return press(control, static_cast<int>(character)) != key::Refused; });
}

bool Keyboard::pressDefault(Form& form, const QKeyEvent& event)
{
    if (!isEnter(event))
        return false;
    if (event.isAutoRepeat())
        return true;
    Control* button = form.defaultButton();
    if (!button || !button->isEnabled() || !button->isVisible())
        return false;
    button->press();
    return true;
}

void Keyboard::pressedOnForm(Form& form, const QKeyEvent& event)
{
    if (event.key() == Qt::Key_F1) {
        openHelpFor(form, nullptr);
        return;
    }
    if (pressDefault(form, event))
        return;
    if (isCommand(event) || !hasCharacter(event))
        return;
    runHandler(form.path(), "KeyPress", [&form, &event] {
        for (const uint character : event.text().toUcs4()) {
            int code = static_cast<int>(character);
            form.Form_KeyPress(code);
        }
    });
}

} // namespace forms
