// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"

#include <QStringList>
#include <QVariant>

/// What stands before the user, as one text, to be compared at once: the number of the current screen, the screen in
/// front with the control that has its focus and what is selected there, then other screens in sight.
/// "1 frmGenInfo: txtInfo(1) [Ada]; frmMain"
QString scene();

/// The control with the focus and what is selected there: "txtInfo(1) [Ada]".
QString focus();

/// What a user finds of a control, in parts: first "=" and its text, or ": " and its caption, or nothing; then "on",
/// "locked", "grey", "hidden", "red" and "default", whichever it is, and its tool tip: "tip \" Click Here \"".
QStringList partsOf(const forms::Control& control);

/// Members of an array of which the same is told, in one: "txtInfo(0 1 2)=".
QStringList gathered(const QStringList& told);

/// Where the Tab key goes from here until it is back: "cmdIn cmdOut".
QString ring(const forms::Form& form);

/// Texts, numbers and truths as one line, to be compared at once: "2 frmMain: cmdIn, 3, true".
template <class... Things>
QString line(const Things&... things)
{
    return (QStringList() << ... << QVariant(things).toString()).join(QStringLiteral(", "));
}

/// Where the user is: the scene without the focus, "2 frmMain".
inline QString front()
{
    return scene().section(u':', 0, 0);
}
