// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/behaviours.h"

#include "platform/forms/look.h"

namespace forms::behaviours {

void showPressed(CommandButton& button)
{
    button.setBackColour(look::colours().pressed);
}

void showReleased(CommandButton& button)
{
    button.setBackColour({});
}

void pressedColour(CommandButton& button)
{
    button.MouseDown = [&button] { showPressed(button); };
    button.MouseUp = [&button] { showReleased(button); };
}

void selectOnFocus(TextEntry& box)
{
    box.GotFocus = [&box] { box.selectAll(); };
}

void selectOnClick(TextEntry& box)
{
    box.Click = [&box] { box.selectAll(); };
}

void listOnly(ComboBox& box)
{
    box.KeyPress = [](int& keyAscii) { keyAscii = key::Refused; };
    // Delete gives no character and would still change the text.
    box.KeyDown = [](int& keyCode) {
        if (keyCode == key::Delete)
            keyCode = key::Refused;
    };
}

void movementOnly(ComboBox& box)
{
    box.KeyDown = [](int& keyCode) {
        if (keyCode != key::Enter && keyCode != key::Down && keyCode != key::Up)
            keyCode = key::Refused;
    };
}

void noKeys(Control& control, int exception)
{
    control.KeyDown = [exception](int& keyCode) {
        if (keyCode != exception)
            keyCode = key::Refused;
    };
}

void lengthCap(TextEntry& box, int length)
{
    box.KeyPress = [&box, length](int& keyAscii) {
        if (box.text().size() >= length && keyAscii != key::Backspace)
            keyAscii = key::Refused;
    };
}

void digitsOnly(TextEntry& box)
{
    box.KeyPress = [](int& keyAscii) {
        const bool digit = keyAscii >= '0' && keyAscii <= '9';
        if (!digit && keyAscii != key::Backspace)
            keyAscii = key::Refused;
    };
}

void twoLetterCode(ComboBox& box)
{
    box.KeyPress = [&box](int& keyAscii) {
        const bool letter = (keyAscii >= 'A' && keyAscii <= 'Z') || (keyAscii >= 'a' && keyAscii <= 'z');
        if (keyAscii == key::Backspace || (letter && box.text().size() >= 2))
            box.setText({});
        if (!letter && keyAscii != key::Backspace)
            keyAscii = key::Refused;
    };
}

} // namespace forms::behaviours
