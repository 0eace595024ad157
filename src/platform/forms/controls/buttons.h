// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/screens/control.h"

#include <QString>

class QAbstractButton;
class QIcon;

namespace forms {

/// What buttons have in common: a caption, whose "&" marks the access key. Alt with the access key moves the focus here
/// and clicks; where two buttons share a key, it moves the focus only.
class Button : public Control {
public:
    QString caption() const;
    void setCaption(const QString& caption);

protected:
    using Control::Control;

    QAbstractButton* button() const;

    template <class Base>
    friend class ButtonWidget;

private:
    /// True for a button that answers Enter itself.
    virtual bool answersEnter() const { return false; }

    /// True for a button that turns on and off: MouseUp and KeyUp come when it has turned.
    virtual bool turns() const { return false; }

    /// Moves to the neighbour of a group; false leaves the arrow key to the toolkit.
    virtual bool moveByArrow(int) { return false; }
};

/// A button that does something. MouseUp comes before Click.
class CommandButton : public Button {
public:
    CommandButton(Form& form, const QString& name);

    /// Fires Click, as the user's press does, where the button is enabled and visible.
    void press() override;

    /// The picture left of the caption: a path of the program's resources.
    void setIcon(const QString& resource);
    void setIcon(const QIcon& icon);

    /// The default button answers Enter wherever the focus is, except in a box of several lines or on another button. A
    /// form has one at most: making this one the default takes it from any other.
    void setDefault(bool isDefault);
    bool isDefault() const;

    /// A button that takes away what doesn't come back looks like no other one.
    void setDestructive(bool destructive);
    bool isDestructive() const;

private:
    bool answersEnter() const override { return true; }
    void clicked();
};

/// One choice of several; those in the same container exclude each other. Click fires when the user or the code chooses
/// it, never when it turns off. MouseUp and KeyUp come behind.
class OptionButton : public Button {
public:
    OptionButton(Form& form, const QString& name);

    bool value() const;
    void setValue(bool chosen);

private:
    bool isTabStop() const override;
    bool turns() const override { return true; }
    bool moveByArrow(int direction) override;

    bool chosen_ = false; // as of the last Click
};

/// A box that is ticked or not. Click fires when the user or the code changes it. MouseUp and KeyUp come
/// behind.
class CheckBox : public Button {
public:
    CheckBox(Form& form, const QString& name);

    /// 1 ticked, 0 clear.
    int value() const;
    void setValue(int value);

private:
    bool turns() const override { return true; }
};

} // namespace forms
