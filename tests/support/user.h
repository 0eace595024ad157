// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"

#include <QPoint>
#include <QString>

#include <functional>
#include <stdexcept>
#include <vector>

class QWidget;

/// What a user does, through the windows as real events: a screen behind a modal one gets nothing, as in life. What a
/// user can't do (click a hidden control, pick an item that isn't in the list) fails the test.
namespace user {

/// A control of a screen by its name; throws with a list of all names where there is none.
forms::Control& control(forms::Form& form, const QString& name);

template <class Kind>
Kind& control(forms::Form& form, const QString& name)
{
    return dynamic_cast<Kind&>(control(form, name));
}

// ---- the mouse; positions count from the top left corner of the control

void click(forms::Control& control);
void clickAt(forms::Control& control, QPoint position);
void drag(forms::Control& control, QPoint from, QPoint to);

/// The second click of a double click: at once or so much later, and where the last one was, on whatever is there by
/// now.
void clickAgain(int milliseconds = 0);

/// What the menu offers that opens, if one does; it is left without a choice, or with a command.
QStringList rightClick(forms::Control& control, const QString& command = {});

void clickArrow(forms::ComboBox& box);

/// Turns the wheel over a widget, by eighths of a degree.
void wheel(QWidget& widget, int eighths);

// ---- the keyboard; whatever has the focus gets it

/// Types characters one by one; "\n" is the Enter key and "\t" the Tab key.
void type(const QString& text);

/// The same in a control, which is clicked first unless it has the focus.
void type(forms::Control& control, const QString& text);

void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
void press(const std::vector<Qt::Key>& keys);

/// Presses a key and keeps it down; its repeats and its release go to whatever is in front by then.
void hold(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
void repeat(Qt::Key key, Qt::KeyboardModifiers modifiers = {}, int times = 3);
void letGo(Qt::Key key, Qt::KeyboardModifiers modifiers = {});

void tab();

/// Alt with a letter.
void accessKey(char letter);

// ---- other ways in which text gets into a box

/// Copies elsewhere and pastes.
void paste(const QString& text);

/// Drags a text in from a program that would rather move it; true when the answer is a copy all along.
bool drop(forms::Control& control, const QString& text);

/// Commits a text composed with an input method.
void commit(const QString& text);

/// Has an assistive tool set the text.
void setByAssistant(forms::Control& control, const QString& text);

// ---- lists and windows

/// Tells that a list doesn't open or has no such item, which a way may be about.
struct NoSuchItem : std::out_of_range {
    using std::out_of_range::out_of_range;
};

/// Opens the list with the mouse and clicks an item.
void pick(forms::ComboBox& box, const QString& item);

QStringList itemsOf(const forms::ComboBox& box);

/// Presses the close box in the title bar.
void closeBox(forms::Form& form);

/// Lets the program do what it has put off; until something is so, for half a minute at most.
void settle();
void settleUntil(const std::function<bool()>& isSo);

} // namespace user
