// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/screens/control.h"

#include <functional>
#include <memory>
#include <typeindex>
#include <typeinfo>
#include <vector>

class QEventLoop;
class QSize;
class QVBoxLayout;

namespace forms {

class FormWindow;
class Notice;

/// A screen: a window of fixed size with controls. Screens are shown and hidden and keep their contents while hidden.
///
/// Form_Activate and Form_Deactivate follow the program's own active screen: they run when another screen of the
/// program is shown or comes forward and when a modal screen closes, inside the call that causes it. A message box, a
/// list, a menu or a visit to another program is no reason.
class Form {
public:
    explicit Form(const QString& name);
    virtual ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const QString& name() const { return name_; }

    /// The owner of the form's own events in the run-time report: "frmMain.Form".
    QString path() const { return name_ + QStringLiteral(".Form"); }

    /// Shows the screen in front of the others. Form_Activate and the first GotFocus have run on return.
    void show();

    /// Shows the screen in front of `owner` and returns when it is hidden; meanwhile no other screen takes input.
    /// Nothing happens where an earlier call hasn't returned yet.
    void showModal(Form& owner);

    /// Hides the screen. The screen shown before it comes forward, if one is there.
    void hide();
    bool isVisible() const { return shown_; }

    /// Gives up what the window system keeps for a hidden screen, which is as much memory as the screen has pixels,
    /// until it is shown again.
    void giveUpWindow();

    /// Does what the close box does: asks Form_Unload and, unless it cancels, hides the screen and destroys it.
    void close();

    /// A disabled screen takes no input; its focus stays where it is.
    void setEnabled(bool enabled);
    bool isEnabled() const { return enabled_; }

    void setTitle(const QString& title);
    QString title() const;

    /// What assistive tools say behind the screen's name, when the screen comes forward.
    void setSpokenState(const QString& words);
    const QString& spokenState() const { return spokenState_; }

    /// Has assistive tools read out what has changed on the screen, wherever the focus is.
    void announce(const QString& words);

    /// The help topic for controls without a number of their own.
    void setHelpNumber(int number) { helpNumber_ = number; }
    int helpNumber() const { return helpNumber_; }

    /// The control that has the focus here, or will have it when the screen comes forward.
    Control* activeControl() const { return wanted_ ? wanted_ : focused_; }

    /// All controls in the order in which they were made.
    const std::vector<Control*>& controls() const { return controls_; }

    /// The widget on which look files lay the controls out, and the window around it.
    QWidget* canvas() const { return canvas_; }
    QWidget* window() const;

    /// The window is never smaller, unless the desktop is.
    void setLeastSize(const QSize& size);

    Control* defaultButton() const { return defaultButton_; }
    void setDefaultButton(Control* button);

    /// Runs Form_Load; screen() calls it once, when the screen is complete.
    void load();

protected:
    virtual void Form_Load() { }
    virtual void Form_Activate() { }
    virtual void Form_Deactivate() { }

    /// Asked by the close box; `cancel` keeps the screen.
    virtual void Form_Unload(bool& cancel);

    /// A key pressed while no control has the focus.
    virtual void Form_KeyPress(int& keyAscii);

private:
    friend class Control;
    friend class FormWindow;
    friend class Keyboard;
    friend class Stage;

    void enroll(Control& control);
    void dismiss(Control& control);
    void moveFocus(Control* control);
    void enter();
    Control* firstInTabOrder() const;
    Control* nextInTabOrder(bool forward) const;

    QString name_;
    QString spokenState_;
    FormWindow* window_;
    QWidget* canvas_;
    Notice* notice_ = nullptr; // once something has been announced
    std::vector<Control*> controls_;
    Control* focused_ = nullptr; // has had GotFocus
    Control* moving_ = nullptr; // about to get it, while LostFocus of another runs
    Control* wanted_ = nullptr; // set by code while another screen is in front
    Control* defaultButton_ = nullptr;
    QEventLoop* modalLoop_ = nullptr;
    int helpNumber_ = 0;
    bool loaded_ = false;
    bool shown_ = false;
    bool enabled_ = true;
};

namespace detail {
Form* findScreen(std::type_index type);
Form& keepScreen(std::type_index type, std::unique_ptr<Form> form);
void discardScreen(Form& form);
} // namespace detail

/// The one object of a screen, made at its first use and alive until the process ends or its close box destroys it.
template <class Screen>
Screen& screen()
{
    const std::type_index type(typeid(Screen));
    if (Form* made = detail::findScreen(type))
        return static_cast<Screen&>(*made);
    return static_cast<Screen&>(detail::keepScreen(type, std::make_unique<Screen>()));
}

/// The screens that are made, the oldest first.
std::vector<Form*> madeScreens();

/// Destroys all screens, newest first. For tests, which start each time with none.
void destroyScreens();

/// The screen in front, or null.
Form* activeForm();

} // namespace forms
