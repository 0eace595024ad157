// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/controls/buttons.h"
#include "platform/forms/controls/combo_box.h"
#include "platform/forms/controls/text_box.h"

/// Ready-made behaviours that recur on many controls; a look file names them. Each assigns the handlers that it needs;
/// an event that has one already takes no second. Where a handler has to do more, it calls the plain function instead.
namespace forms::behaviours {

// ---- plain functions, for handlers

/// The colours that a button has on MouseDown and on MouseUp.
void showPressed(CommandButton& button);
void showReleased(CommandButton& button);

/// For KeyDown: Enter, Up and Down, by which one moves in a list.
bool isMovementKey(int keyCode);

/// For KeyPress: 0 to 9.
bool isDigit(int keyAscii);

/// For KeyPress: refuses all but the digits and Backspace.
void takeDigits(int& keyAscii);

/// For KeyPress: refuses all but Backspace once the text is so long.
void takeUpTo(const TextEntry& box, int length, int& keyAscii);

/// For KeyPress of a two-letter code: Backspace empties the box, a letter begins a new code when exactly two characters
/// stand there (a longer text, which no code is, stays), and all else is refused.
void takeTwoLetterCode(ComboBox& box, int& keyAscii);

// ---- behaviours

/// MouseDown gives the button the pressed colour, MouseUp the normal one back.
void pressedColour(CommandButton& button);

/// GotFocus selects the whole text.
void selectOnFocus(TextEntry& box);

/// A click selects the whole text.
void selectOnClick(TextEntry& box);

/// KeyPress refuses every character, and Delete takes nothing out: the list is used by mouse or cursor keys only.
void listOnly(ComboBox& box);

/// KeyDown refuses all keys but Enter, Up and Down.
void movementOnly(ComboBox& box);

/// KeyDown refuses all keys, with one exception where one is given.
void noKeys(Control& control, int exception = key::Refused);

/// KeyPress refuses all characters but Backspace once the text is so long.
void lengthCap(TextEntry& box, int length);

/// KeyPress takes the digits 0 to 9 and Backspace only.
void digitsOnly(TextEntry& box);

/// KeyPress takes a two-letter code.
void twoLetterCode(ComboBox& box);

} // namespace forms::behaviours
