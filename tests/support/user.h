// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"

#include <QPoint>
#include <QString>

class QWindow;

/// What a user does. Everything goes through the windows as real events, the way of the hardware: a screen behind a
/// modal one gets nothing, as in life. What a user can't do (click a hidden control, pick an item that isn't in the
/// list) fails the test and says what there is.
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
void rightClick(forms::Control& control);

// ---- the keyboard; whatever has the focus gets it

/// Types characters one by one; "\n" is the Enter key and "\t" the Tab key.
void type(const QString& text);

/// The same in a control, which is clicked first unless it has the focus.
void type(forms::Control& control, const QString& text);

void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
void tab();
void backTab();

/// Alt with a letter.
void accessKey(char letter);

// ---- other ways in which text gets into a box

/// Copies elsewhere and pastes with Ctrl+V.
void paste(const QString& text);
void pasteByShiftInsert(const QString& text);
void pasteByMenu(forms::Control& control, const QString& text);

/// With the primary selection; where the platform has none, the middle button is clicked all the same.
void pasteByMiddleClick(forms::Control& control, const QString& text);
void drop(forms::Control& control, const QString& text);

/// Commits a text composed with an input method.
void commit(const QString& text);

// ---- lists and windows

/// Opens the list with the mouse and clicks an item.
void pick(forms::ComboBox& box, const QString& item);

/// Presses the close box in the title bar.
void closeBox(forms::Form& form);

/// Clicks on the window of a screen that stands behind another one.
void clickWindow(forms::Form& form);

/// Turns to another program and comes back.
void visitAnotherProgram();

// ---- for the harness itself

/// The window that gets the keys.
QWindow& frontWindow();

/// Lets the program do what it has put off.
void settle();

} // namespace user
