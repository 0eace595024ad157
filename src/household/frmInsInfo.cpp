// SPDX-License-Identifier: GPL-3.0-or-later
#include "household/frmInsInfo.h"

#include "data/data_store.h"
#include "platform/values/date.h"
#include "platform/values/failure.h"
#include "platform/values/text.h"
#include "shared/conventions.h"
#include "shared/frmCalendar.h"
#include "shared/ways.h"

using conventions::None;
using conventions::orNone;
using forms::screen;
using values::RuntimeFailure;

namespace {

constexpr int DateForPolicy = 4; // DateTarget of the calendar

// Refuses what is no amount: the totals compare the coverage with a number.
QString coverageToStore(const QString& text)
{
    const QString coverage = orNone(text);
    return coverage == None ? None : values::Currency::parse(coverage).toText();
}

} // namespace

frmInsInfo::frmInsInfo()
    : NumberedScreen("frmInsInfo", 8)
{
    look();
}

void frmInsInfo::Form_Activate()
{
    CurrentScreen = Number;
    NotifyFromCode = true;
}

// Not cancelled, and nothing is asked, whatever was typed: on purpose.
void frmInsInfo::Form_Unload(bool&)
{
    hide();
    ways::frmGenInfo().show();
}

// ---- boxes

void frmInsInfo::txtPolicyExpire_Change()
{
    try {
        const QString date = txtPolicyExpire.text();
        if (date == None)
            return;
        const bool past = values::Today() > values::Date::parse(date);
        if (chkNotify.value() == 1 && past)
            reset_Notify();
    } catch (const RuntimeFailure&) {
        reset_Notify(); // no date, whether the box is ticked or not
    }
}

void frmInsInfo::txtPolicyExpire_KeyPress(int& KeyAscii)
{
    KeyAscii = forms::key::Refused;
    show_Policy_Date_Calendar();
}

void frmInsInfo::chkNotify_worked()
{
    NotifyFromCode = false;
    check_Notify();
}

void frmInsInfo::show_Policy_Date_Calendar()
{
    setEnabled(false);
    const auto give_Back = [this] { setEnabled(true); };
    const auto take_Date = [this](const forms::MonthCalendar& date) {
        txtPolicyExpire.setText(frmCalendar::date_Text(date));
    };
    screen<frmCalendar>().show_For({*this, DateForPolicy, give_Back, take_Date}, txtPolicyExpire.text());
}

void frmInsInfo::check_Notify()
{
    try {
        // An empty text and "None" are no date and fail here, ticked or not.
        const bool past = values::Date::parse(txtPolicyExpire.text()) < values::Today();
        if (past && chkNotify.value() == 1 && !NotifyFromCode) {
            refuse_Notify();
            return;
        }
        write_Policy();
        whiten();
    } catch (const RuntimeFailure&) {
        Data1.rsGeneral.CancelUpdate(); // no later save of another screen may store the half of it
        refuse_Notify();
    }
}

void frmInsInfo::refuse_Notify()
{
    conventions::MsgBox(
        "You Must Select A Future Policy Expiration Date Before Selecting This Option!", forms::box::Exclamation);
    chkNotify.setValue(0);
    conventions::showError(txtPolicyExpire);
    txtPolicyExpire.setFocus();
}

void frmInsInfo::reset_Notify()
{
    conventions::MsgBox("Date Is Not A Future Date...Resetting The Notification Checkbox!", forms::box::Exclamation);
    chkNotify.setValue(0);
    check_Notify();
}

// ---- buttons

void frmInsInfo::cmdUpdate_Click()
{
    try {
        if (orNone(txtPolicyExpire.text()) == None)
            chkNotify.setValue(0);
        write_Policy();
        conventions::MsgBox("Your Insurance Information Has Been Updated!", forms::box::Information);
        hide();
        ways::frmGenInfo().show();
        whiten();
    } catch (const RuntimeFailure&) {
        Data1.rsGeneral.CancelUpdate(); // no later save of another screen may store the half of it
        conventions::MsgBox("Invalid Policy Expiration Date...Be Sure The Format Is mm/dd/yyyy (Example: 12/25/2005)",
            forms::box::Exclamation);
        txtPolicyExpire.setFocus();
        txtPolicyExpire.selectAll();
    }
}

void frmInsInfo::cmdCancel_Click()
{
    conventions::showNormal(txtPolicyExpire);
    if (has_Changed()
        && !conventions::confirmed(
            "Information Has Changed Regarding This Policy, All Changes Will Be Lost...Continue?",
            forms::box::Question + forms::box::YesNo))
        return;
    ways::frmGenInfo().show();
    hide();
}

void frmInsInfo::cmdClear_Click()
{
    chkNotify.setValue(0);
    for (forms::TextBox* box : {&txtCompany, &txtPolicyNum, &txtPolicyExpire})
        box->setText(None);
    txtCoverageAmt.setText("$0.00");
}

// ---- the record

void frmInsInfo::write_Policy()
{
    storage::TableView& row = Data1.rsGeneral;
    rewind(row);
    row.Fields(General::PolicyExpiration) = orNone(txtPolicyExpire.text());
    txtPolicyExpire.setText(row.Fields(General::PolicyExpiration).text());
    row.Fields(General::PolicyCompany) = orNone(txtCompany.text());
    row.Fields(General::PolicyNumber) = orNone(txtPolicyNum.text());
    row.Fields(General::PolicyCoverage) = coverageToStore(txtCoverageAmt.text());
    txtCoverageAmt.setText(values::currencyFormat(row.Fields(General::PolicyCoverage).text()));
    row.Fields(General::PolicyNotify) = chkNotify.value() == 1 ? "Yes" : "No";
    row.Update();
}

void frmInsInfo::whiten()
{
    conventions::showNormal(txtPolicyExpire);
    conventions::showNormal(txtCoverageAmt);
}

bool frmInsInfo::has_Changed() const
{
    storage::TableView& row = Data1.rsGeneral;
    rewind(row);
    const QString NotifyText = chkNotify.value() == 1 ? "Yes" : "No";
    const auto differs = [&row](General::Column column, const QString& shown) {
        return !values::equalUpper(row.Fields(column).text(), shown);
    };
    return differs(General::PolicyNotify, NotifyText) || differs(General::PolicyNumber, txtPolicyNum.text())
        || differs(General::PolicyExpiration, txtPolicyExpire.text())
        || differs(General::PolicyCoverage, txtCoverageAmt.text())
        || differs(General::PolicyCompany, txtCompany.text());
}
