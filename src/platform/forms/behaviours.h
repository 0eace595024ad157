// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/buttons.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/text_box.h"

/// Ready-made behaviours that recur on many controls; a look file names them. Each assigns the handlers that it needs.
namespace forms::behaviours {

/// MouseDown gives the button the pressed colour, MouseUp the normal one back.
void pressedColour(CommandButton& button);

/// The pressed colour alone, for a handler that does more on MouseDown, and its return.
void showPressed(CommandButton& button);
void showReleased(CommandButton& button);

/// GotFocus selects the whole text.
void selectOnFocus(TextEntry& box);

/// A click selects the whole text.
void selectOnClick(TextEntry& box);

/// KeyPress refuses every character: the list is used by mouse or cursor keys only.
void listOnly(ComboBox& box);

/// KeyDown refuses all keys but Enter, Up and Down.
void movementOnly(ComboBox& box);

/// KeyDown refuses all keys, with one exception where one is given.
void noKeys(Control& control, int exception = key::Refused);

/// KeyPress refuses all characters but Backspace once the text is so long.
void lengthCap(TextEntry& box, int length);

/// KeyPress takes the digits 0 to 9 and Backspace only.
void digitsOnly(TextEntry& box);

/// KeyPress of a box for a two-letter code: Backspace empties the box, a letter begins a new code when two stand there,
/// and all else is refused.
void twoLetterCode(ComboBox& box);

} // namespace forms::behaviours
