// SPDX-License-Identifier: GPL-3.0-or-later
#include "shared/frmCalendar.h"

#include "shared/conventions.h"

#include <QScopedValueRollback>

namespace {

constexpr int YesNoQuestion = forms::box::Question + forms::box::YesNo;

} // namespace

frmCalendar::frmCalendar()
    : forms::Form("frmCalendar")
{
    look();
}

void frmCalendar::Form_Activate()
{
    CurrentScreen = 19;
}

void frmCalendar::Form_KeyPress(int& keyAscii)
{
    close_Calendar(keyAscii);
}

void frmCalendar::Form_Unload(bool& cancel)
{
    cancel = true;
    close_Calendar(forms::key::Escape);
}

void frmCalendar::show_For(const DateCaller& caller)
{
    const QScopedValueRollback<const DateCaller*> asking(Caller, &caller);
    DateTarget = caller.DateTarget;
    showModal(caller.screen);
}

void frmCalendar::show_For(const DateCaller& caller, const QString& shown)
{
    calDate.setValue(values::Date::tryParse(shown).value_or(values::Today()));
    show_For(caller);
}

QString frmCalendar::date_Text(const forms::MonthCalendar& date)
{
    return QStringLiteral("%1/%2/%3").arg(date.Month()).arg(date.Day()).arg(date.Year());
}

// The caller whose date this is, or none.
const DateCaller* frmCalendar::target() const
{
    return Caller && Caller->DateTarget == DateTarget ? Caller : nullptr;
}

void frmCalendar::copy_Date_Out()
{
    hide();
    const DateCaller* caller = target();
    if (!caller)
        return;
    CurrentScreen = caller->screen.Number;
    caller->give_Back();
    caller->take_Date(calDate);
}

// Every key but Enter leaves without a date, though the label speaks of the space bar.
void frmCalendar::close_Calendar(int KeyAscii)
{
    if (!has_Date())
        return;
    if (KeyAscii == forms::key::Enter)
        copy_Date_Out();
    else if (!conventions::confirmed("Are You Sure You Want To Close The Calendar?", YesNoQuestion))
        return;
    hide();
    if (const DateCaller* caller = target())
        caller->give_Back();
}

// Offers today where the date is incomplete; false where the user declines.
bool frmCalendar::has_Date()
{
    if (calDate.isComplete())
        return true;
    if (!conventions::confirmed(
            "A Calendar Date Has Not Been Selected...Would You Like To Use Today's Date!", YesNoQuestion))
        return false;
    calDate.setValue(values::Today());
    return true;
}
