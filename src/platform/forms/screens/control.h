// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/runtime/event.h"

#include <QColor>
#include <QString>

#include <array>
#include <initializer_list>
#include <memory>

class QKeyEvent;
class QWidget;

namespace forms {

class Form;

/// Key codes as handlers see them: virtual key codes in KeyDown and KeyUp, characters in KeyPress.
namespace key {
inline constexpr int Refused = 0; ///< what a handler sets a key to so that the control never sees it
inline constexpr int Backspace = 8;
inline constexpr int Enter = 13;
inline constexpr int Escape = 27;
inline constexpr int Space = 32;
inline constexpr int PageUp = 33;
inline constexpr int PageDown = 34;
inline constexpr int Left = 37;
inline constexpr int Up = 38;
inline constexpr int Right = 39;
inline constexpr int Down = 40;
inline constexpr int Delete = 46;
inline constexpr int F1 = 112;

/// True while Ctrl is held down and neither Shift nor Alt is, for handlers that give a key another meaning with it.
bool isWithControl();
} // namespace key

/// What all controls have in common. A control belongs to one form, wraps one widget of the toolkit and never shows it
/// to the screens' handlers.
class Control {
public:
    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    /// The name under which tests, assistive tools and the run-time report know the control: "cmdIn", "txtInfo(7)".
    const QString& name() const { return name_; }
    Form& form() const { return form_; }

    /// The widget, for layouts and tests.
    QWidget* widget() const { return widget_; }

    /// A disabled control takes no input; when it has the focus, the focus moves on.
    void setEnabled(bool enabled);
    bool isEnabled() const;

    /// A hidden control keeps its contents; when it has the focus, the focus moves on.
    void setVisible(bool visible);
    bool isVisible() const;

    /// Moves the focus here: LostFocus and GotFocus have run on return. On a form that is not in front the focus is
    /// taken when the form comes. On a disabled or hidden control nothing happens.
    void setFocus();
    bool hasFocus() const;

    /// Does what the user's press does, where the control is one that can be pressed.
    virtual void press() { }

    /// True when the control can take the focus now.
    bool canTakeFocus() const;

    /// The text shown while the pointer rests on the control.
    void setToolTip(const QString& text);
    QString toolTip() const;

    /// What assistive tools call the control where no label names it. A change is read out while the focus is here.
    void setSpokenName(const QString& name);

    /// The help topic that F1 opens here; 0 leaves it to the form's number.
    void setHelpNumber(int number) { helpNumber_ = number; }
    int helpNumber() const { return helpNumber_; }

    /// Place in the order of the Tab key, counted from 0; controls with a negative place are left out.
    void setTabIndex(int index) { tabIndex_ = index; }
    int tabIndex() const { return tabIndex_; }

    /// The background; an invalid colour gives the control's normal one back.
    void setBackColour(const QColor& colour);
    QColor backColour() const { return backColour_; }

    /// The colour of what is written in the control; an invalid one gives the normal one back.
    void setTextColour(const QColor& colour);

    Event<> GotFocus{path_, "GotFocus"};
    Event<> LostFocus{path_, "LostFocus"};
    Event<int&> KeyDown{path_, "KeyDown"}; ///< virtual key code, before KeyPress
    Event<int&> KeyPress{path_, "KeyPress"}; ///< character code
    Event<int&> KeyUp{path_, "KeyUp"}; ///< virtual key code
    Event<> MouseDown{path_, "MouseDown"};
    Event<> MouseUp{path_, "MouseUp"};
    Event<> Click{path_, "Click"};
    Event<> DblClick{path_, "DblClick"};

protected:
    Control(Form& form, const QString& name);

    /// Takes the widget that stands for this control; the toolkit's parent deletes it.
    void adopt(QWidget* widget);

    /// The name with the form's in front, as the run-time report says it.
    const QString& path() const { return path_; }

    /// The focus has gone to another control, and LostFocus has run.
    virtual void hasLostFocus() { }

    /// The desktop is small: an ornament is shown at a share of its size; at 0 it leaves its room to the others.
    virtual void takeShare(double /*share*/) { }

    /// True when the Tab key stops here, apart from place and state.
    virtual bool isTabStop() const { return true; }

    friend class Form;
    friend class FormWindow;
    friend class Keyboard;
    friend class Stage;

private:
    void moveFocusOn();
    void paintAnew();

    Form& form_;
    QString name_;
    QString path_;
    QWidget* widget_ = nullptr;
    QColor backColour_;
    QColor textColour_;
    int helpNumber_ = 0;
    int tabIndex_ = -1;
};

/// Controls of one kind that share a name and are told apart by an index. Some indices may be left out.
template <class Kind, int Count>
class ControlArray {
public:
    ControlArray(Form& form, const QString& name, std::initializer_list<int> without = {})
    {
        std::array<bool, Count> wanted;
        wanted.fill(true);
        for (const int index : without)
            wanted[static_cast<std::size_t>(index)] = false;
        for (int index = 0; index < Count; ++index)
            if (wanted[static_cast<std::size_t>(index)])
                members_[static_cast<std::size_t>(index)] =
                    std::make_unique<Kind>(form, name + QStringLiteral("(%1)").arg(index));
    }

    /// The member of an index; an index that was left out must not be asked for.
    Kind& operator[](int index) { return *members_.at(static_cast<std::size_t>(index)); }
    const Kind& operator[](int index) const { return *members_.at(static_cast<std::size_t>(index)); }

    bool has(int index) const { return members_.at(static_cast<std::size_t>(index)) != nullptr; }
    static constexpr int count() { return Count; }

private:
    std::array<std::unique_ptr<Kind>, static_cast<std::size_t>(Count)> members_;
};

} // namespace forms
