// SPDX-License-Identifier: GPL-3.0-or-later
#include "shared/frmCalendar.h"

#include "accounts/frmBank.h"
#include "assets/frmAddUpDel.h"
#include "assets/frmWar.h"
#include "frame/frmStartup.h"
#include "household/frmInsInfo.h"
#include "shared/conventions.h"

#include <algorithm>

using forms::screen;

namespace {

constexpr int YesNoQuestion = forms::box::Question + forms::box::YesNo;

// "7/4/2006"
QString dateText(const forms::MonthCalendar& date)
{
    return QStringLiteral("%1/%2/%3").arg(date.Month()).arg(date.Day()).arg(date.Year());
}

// A caller: what it disabled before it showed the calendar, and where its date goes.
struct Target {
    int number;
    int callerScreen;
    void (*giveBack)();
    void (*deliver)(const forms::MonthCalendar& date);
};

// The month goes first, for it refills the list of days. A number that no month has writes nothing.
void deliverPieces(
    const forms::MonthCalendar& date, forms::ComboBox& month, forms::ComboBox& day, forms::ComboBox& year)
{
    if (date.Month() >= 1 && date.Month() <= frmCalendar::MonthNames.size())
        month.setText(frmCalendar::MonthNames[date.Month() - 1]);
    day.setText(QString::number(date.Day()));
    year.setText(QString::number(date.Year()));
}

void giveWarrantyBack()
{
    screen<frmWar>().cmdCancel.setEnabled(true);
    screen<frmWar>().cmdSave.setEnabled(true);
}

void giveAccountBack()
{
    auto& account = screen<frmBank>();
    account.FreshEntry = false;
    account.setEnabled(true);
    account.cmdBack.setEnabled(true);
    account.cmdState.setEnabled(true);
}

const Target targets[] = {
    {frmWar::PartsDate, 9, giveWarrantyBack,
        [](const forms::MonthCalendar& date) {
            auto& warranty = screen<frmWar>();
            deliverPieces(date, warranty.cmbPMonth, warranty.cmbPDay, warranty.cmbPYear);
        }},
    {frmWar::LaborDate, 9, giveWarrantyBack,
        [](const forms::MonthCalendar& date) {
            auto& warranty = screen<frmWar>();
            deliverPieces(date, warranty.cmbLMonth, warranty.cmbLDay, warranty.cmbLYear);
        }},
    {3, 10, [] { screen<frmAddUpDel>().setEnabled(true); },
        [](const forms::MonthCalendar& date) { screen<frmAddUpDel>().txtPur.setText(dateText(date)); }},
    {4, 8, [] { screen<frmInsInfo>().setEnabled(true); },
        [](const forms::MonthCalendar& date) { screen<frmInsInfo>().txtPolicyExpire.setText(dateText(date)); }},
    {5, 7, giveAccountBack,
        [](const forms::MonthCalendar& date) { screen<frmBank>().txtDate.setText(dateText(date)); }},
};

// Null for a number that no caller has.
const Target* targetOf(int number)
{
    const auto found = std::find_if(
        std::begin(targets), std::end(targets), [number](const Target& target) { return target.number == number; });
    return found == std::end(targets) ? nullptr : found;
}

} // namespace

frmCalendar::frmCalendar()
    : forms::Form("frmCalendar")
{
    look();
}

void frmCalendar::Form_Activate()
{
    frmStartup::CurrentScreen = 19;
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

void frmCalendar::show_For(forms::Form& caller, int target, const QString& shown)
{
    DateTarget = target;
    calDate.setValue(values::Date::tryParse(shown).value_or(values::Today()));
    show_Modal(caller);
}

void frmCalendar::copy_Date_Out()
{
    hide();
    const Target* target = targetOf(DateTarget);
    if (!target)
        return;
    frmStartup::CurrentScreen = target->callerScreen;
    target->giveBack();
    target->deliver(calDate);
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
    if (const Target* target = targetOf(DateTarget))
        target->giveBack();
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
