// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/looks/theme.h"
#include "platform/forms/screens/control.h"

#include <QElapsedTimer>

#include <memory>

class QAccessibleInterface;
class QObject;
class QProgressBar;
class QTimer;

namespace forms {

class LabelWidget;
class PictureWidget;

/// A text beside other controls. "&" marks an access key where the label names another control, and "&&" reads "&".
class Label : public Control {
public:
    Label(Form& form, const QString& name);
    Label(Form& form, const QString& name, const QString& caption);

    QString caption() const { return caption_; }
    void setCaption(const QString& caption);
    void setRole(TextRole role);
    TextRole role() const { return role_; }

    /// Breaks the text into lines at the given width in average characters.
    void wrapAt(int characters);

    /// Stands on the right, the last digits of several labels one below the other, whichever role each has: the closing
    /// parenthesis of an amount below zero hangs over.
    void alignAmounts();

    /// A click on it opens help as F1 does, and so does a screen reader that presses it.
    void openHelp();

    /// Names a control: for assistive tools, and for the caption's access key, which moves the focus there.
    void nameFor(Control& control);

private:
    LabelWidget* label_;
    QString caption_;
    TextRole role_ = TextRole::Body;
    bool namesControl_ = false;
    bool alignsAmounts_ = false;
};

/// What assistive tools find in place of a label that opens help; null for any other object.
QAccessibleInterface* describeHelpLabel(QObject* object);

/// A picture of the program's resources. It grows with the font; at the least one it has its own size.
class Picture : public Control {
public:
    Picture(Form& form, const QString& name);

    /// Shows a picture. `description` is what assistive tools say in its place.
    void setPicture(const QString& resource, const QString& description);

    /// Shows it at a share of its size; at 0 it leaves its room to the others.
    void setShare(double share);

    /// Gives up the memory that the picture takes, until it is painted again.
    void release();

private:
    /// One that answers nothing may give up its room.
    void takeShare(double share) override;

    PictureWidget* picture_;
};

/// A framed group with a caption; option buttons inside exclude each other.
class GroupBox : public Control {
public:
    GroupBox(Form& form, const QString& name);

    QString caption() const;
    void setCaption(const QString& caption);

    /// Moves a control's widget into the group.
    void hold(Control& control);
};

/// How far a long operation is. It paints while a handler runs on, no more often than an eye can see.
class ProgressBar : public Control {
public:
    ProgressBar(Form& form, const QString& name);

    /// The value at which the bar is full. Anything below 1, or below the value, is refused (InvalidCall).
    void setMax(int max);
    int max() const { return max_; }

    /// From 0 to the maximum; anything else is refused (InvalidCall).
    void setValue(int value);
    int value() const { return value_; }

private:
    void paintNow();

    QProgressBar* bar_;
    QElapsedTimer sincePaint_;
    int max_ = 100;
    int value_ = 0;
};

/// A clock that fires again and again while it is enabled. It has no widget and takes no input.
class Ticker {
public:
    Ticker(Form& form, const QString& name, int intervalMilliseconds);
    ~Ticker();
    Ticker(const Ticker&) = delete;
    Ticker& operator=(const Ticker&) = delete;

    void setEnabled(bool enabled);
    bool isEnabled() const { return enabled_; }
    int interval() const;

    /// Fires as if the interval were over; nothing happens while disabled.
    void elapse();

    Event<> Timer{name_, "Timer"};

private:
    QString name_;
    std::unique_ptr<QTimer> timer_;
    bool enabled_ = false;
};

} // namespace forms
