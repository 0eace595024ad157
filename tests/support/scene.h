// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"

#include <QStringList>
#include <QVariant>

/// What stands before the user, as one text, to be compared at once: the number of the current screen, the screen in
/// front with the control that has its focus and what is selected there, then other screens in sight.
/// "1 frmGenInfo: txtInfo(1) [Ada]; frmMain"
QString scene();

/// What a screen holds: entries with their texts, boxes and options that are chosen, and whatever is locked, off or
/// hidden. "cmbArea=Indoor off, txtLoc=None locked, chkWar on, cmdUpdate off"
QString contents(const forms::Form& form);

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
