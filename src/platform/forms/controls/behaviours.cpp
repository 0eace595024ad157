// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/controls/behaviours.h"

#include "platform/forms/looks/theme.h"

namespace forms::behaviours {

// ---- plain functions

void showPressed(CommandButton& button)
{
    button.setBackColour(look::colours().pressed);
}

void showReleased(CommandButton& button)
{
    button.setBackColour({});
}

bool isMovementKey(int keyCode)
{
    return keyCode == key::Enter || keyCode == key::Down || keyCode == key::Up;
}

bool isDigit(int keyAscii)
{
    return keyAscii >= '0' && keyAscii <= '9';
}

void takeDigits(int& keyAscii)
{
    if (!isDigit(keyAscii) && keyAscii != key::Backspace)
        keyAscii = key::Refused;
}

void takeUpTo(const TextEntry& box, int length, int& keyAscii)
{
    if (box.text().size() >= length && keyAscii != key::Backspace)
        keyAscii = key::Refused;
}

void takeTwoLetterCode(ComboBox& box, int& keyAscii)
{
    const bool letter = (keyAscii >= 'A' && keyAscii <= 'Z') || (keyAscii >= 'a' && keyAscii <= 'z');
    if (keyAscii == key::Backspace || (letter && box.text().size() == 2))
        box.setText({});
    if (!letter && keyAscii != key::Backspace)
        keyAscii = key::Refused;
}

// ---- behaviours

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
    box.setDeleteRefused(true); // it gives no character and would still change the text
}

void movementOnly(ComboBox& box)
{
    box.KeyDown = [](int& keyCode) {
        if (!isMovementKey(keyCode))
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
    box.KeyPress = [&box, length](int& keyAscii) { takeUpTo(box, length, keyAscii); };
}

void digitsOnly(TextEntry& box)
{
    box.KeyPress = takeDigits;
}

void twoLetterCode(ComboBox& box)
{
    box.KeyPress = [&box](int& keyAscii) { takeTwoLetterCode(box, keyAscii); };
}

} // namespace forms::behaviours
