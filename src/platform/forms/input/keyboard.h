// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QKeyEvent;

namespace forms {

class Control;
class Form;

/// The way of a key through the handlers; for the layer itself, not for screens.
class Keyboard {
public:
    /// The virtual key code of a key: 13 for Enter, 112 for F1; 255 for keys without one.
    static int virtualKey(const QKeyEvent& event);

    static bool isEnter(const QKeyEvent& event);

    /// True for a key held with Ctrl, Alt or Meta, which gives no character. AltGr does give one.
    static bool isCommand(const QKeyEvent& event);

    /// True for a key that carries printable text, be it held with a command key or not.
    static bool hasText(const QKeyEvent& event);

    /// Opens help for a control, or for a screen on which none has the focus.
    static void openHelpFor(const Form& form, const Control* control);

    /// Runs KeyDown and then, for F1, help. True when the key is used up: refused by the handler, or F1.
    static bool down(Control& control, const QKeyEvent& event);

    /// Runs KeyUp, but for the repeats of a key that is held.
    static void up(Control& control, const QKeyEvent& event);

    /// Runs KeyPress with a character and gives back what the handler left of it; 0 is a refusal.
    static int press(Control& control, int character);

    /// Runs KeyPress with each character that a key gives; false when one was refused.
    static bool pressText(Control& control, const QKeyEvent& event);

    /// For the Enter key: presses the form's default button, where it has one that can be pressed. A key that is held
    /// counts once. True when the key is used up.
    static bool pressDefault(Form& form, const QKeyEvent& event);

    /// A key that no control has taken.
    static void pressedOnForm(Form& form, const QKeyEvent& event);
};

} // namespace forms
