// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>

#include <functional>
#include <vector>

class QApplication;
class QKeyEvent;
class QWidget;

namespace forms {

class Control;
class Form;

/// The program's own account of which screens are shown and which one is in front. The window system's account lags
/// behind and is only followed; for the layer itself, not for screens.
class Stage {
public:
    static Stage& instance();

    /// What the stage asks of those who stand at its front, where the user's hands come in.
    struct Hands {
        std::function<bool(QWidget* now)> holdFocusBack; ///< true when a move of the toolkit's focus waits
        std::function<void(Form& form, const QKeyEvent& event)> pressKey; ///< which no control has taken
    };

    /// Follows the focus that the user moves.
    void attend(QApplication& application, Hands hands);

    /// A key has come to the window of a screen, past all controls.
    void keyPressed(Form& form, const QKeyEvent& event) { hands_.pressKey(form, event); }

    Form* active() const { return active_; }

    /// Makes a screen the active one, or none: Form_Deactivate of the old one, Form_Activate and the focus of the new
    /// one.
    void activate(Form* form);

    /// Asks the window system to put the screen in front.
    void bringForward(Form& form);

    /// The window system says that the window of a screen has become the active one.
    void windowActivated(Form& form);

    /// The active screen has been hidden. The screen shown before it comes forward: when the handler that runs has
    /// returned, unless it has shown another one by then, or at once where none runs.
    void giveUpFront();
    void handOnFront();

    void hidden(Form& form);
    void destroyed(Form& form);

    /// True for the window of a screen that is shown.
    bool isScreen(const QWidget& window) const;

    /// The topmost screen that is shown, or null.
    Form* top() const;

    /// Waits until a screen that was asked forward is there, so that showing or hiding the next one doesn't leave the
    /// window system's focus on a hidden window. No user input is handled meanwhile.
    void settle();
    void settleUnless(const Form& form);

    /// Waits until the window is on the screen and handles what the window system wants painted.
    static void paint(Form& form);

    void enroll(QWidget* widget, Control& control) { controls_.insert(widget, &control); }
    void dismiss(QWidget* widget) { controls_.remove(widget); }

    /// Counts what comes between two characters of a pasted text: a message box, another screen in front.
    int interruptions() const { return interruptions_; }
    void interrupted() { ++interruptions_; }

    /// The control that a widget belongs to, or null.
    Control* controlOf(QWidget* widget) const;

    /// The toolkit's focus is on a widget by the user's hand: so is the screen's. False where that is no move within
    /// the screen in front.
    bool follow(QWidget* now);

private:
    void focusMoved(QWidget* now);
    void putOnTop(Form& form);

    Hands hands_;
    std::vector<Form*> shown_; // topmost last
    QHash<QWidget*, Control*> controls_;
    Form* active_ = nullptr;
    int interruptions_ = 0;
    bool frontGivenUp_ = false;
    Form* awaited_ = nullptr; // asked forward, not there yet
};

} // namespace forms
