// SPDX-License-Identifier: GPL-3.0-or-later
#include "household/frmGenInfo.h"

#include "accounts/frmEditBankBoxes.h"
#include "data/data_store.h"
#include "household/frmInsInfo.h"
#include "platform/values/text.h"
#include "shared/conventions.h"
#include "shared/ways.h"

using forms::screen;

namespace {

/// How an entry is stored, and when it is full.
struct Rule {
    const char* marker; ///< what an empty entry is stored as
    bool upper; ///< stored in upper case
    bool hops; ///< leads on to the next entry when it is full
};

constexpr Rule asTyped = {"None", false, false};
constexpr Rule upperCased = {"None", true, false};
constexpr Rule threeDigits = {"---", false, true};
constexpr Rule fourDigits = {"----", false, true};

/// By the ordinals of the columns, Last to EMail.
constexpr Rule rules[] = {
    asTyped, asTyped, asTyped, asTyped, asTyped, // last, first and middle name, address, city
    upperCased, upperCased, // state and ZIP
    threeDigits, threeDigits, fourDigits, // home phone
    threeDigits, threeDigits, fourDigits, // work phone
    threeDigits, threeDigits, fourDigits, // cell phone
    asTyped, // e-mail
};
static_assert(std::size(rules) == General::EMail + 1);

QString toStore(const Rule& rule, const QString& text)
{
    if (text.isEmpty())
        return rule.marker;
    return rule.upper ? values::upper(text) : text;
}

bool standsForEmpty(int index, const QString& stored)
{
    if (values::equalUpper(stored, "None"))
        return true;
    return index != General::State && (stored == "---" || stored == "----");
}

} // namespace

frmGenInfo::frmGenInfo()
    : NumberedScreen("frmGenInfo", 1)
{
    look();
}

void frmGenInfo::Form_Load()
{
    CurrentScreen = Number;
}

void frmGenInfo::Form_Activate()
{
    CurrentScreen = Number;
}

void frmGenInfo::Form_Unload(bool& cancel)
{
    cancel = true;
    cmdExit_Click();
}

void frmGenInfo::cmdInsInfo_Click()
{
    save_It();
    const auto stored = [](General::Column column) { return Data1.rsGeneral.Fields(column).text(); };
    auto& policy = screen<frmInsInfo>();
    policy.txtCompany.setText(stored(General::PolicyCompany));
    policy.txtPolicyNum.setText(stored(General::PolicyNumber));
    policy.txtPolicyExpire.setText(stored(General::PolicyExpiration));
    policy.txtCoverageAmt.setText(values::currencyFormat(stored(General::PolicyCoverage)));
    policy.chkNotify.setValue(stored(General::PolicyNotify) == "Yes" ? 1 : 0); // the exact case, unlike the start
    policy.NotifyFromCode = false;
    policy.show();
    hide();
}

void frmGenInfo::cmdBank_Click()
{
    hide();
    screen<frmEditBankBoxes>().show();
}

void frmGenInfo::cmdContinue_Click()
{
    save_It();
    txtInfo[General::First].setFocus();
    hide();
    ways::frmMain().show();
}

void frmGenInfo::cmdBack_Click()
{
    if (!conventions::confirmed(
            "Any Changes You Have Made Will Be Lost...Continue Anyway?", forms::box::Question + forms::box::YesNo))
        return;
    txtInfo[General::First].setFocus();
    return_To_Menu();
}

void frmGenInfo::cmdExit_Click()
{
    conventions::confirm_Close(*this, [this] { save_It(); });
}

void frmGenInfo::txtInfo_Change(int index)
{
    if (!ChangedByCode && rules[index].hops)
        address::hopFrom(txtInfo[index], txtInfo[index + 1]);
}

void frmGenInfo::load_PersonalInfo()
{
    auto& row = Data1.rsGeneral;
    if (row.atBOF())
        row.MoveNext();
    else
        row.MoveFirst();
    ChangedByCode = true;
    for (int i = General::Last; i <= General::EMail; ++i) {
        const QString stored = row.Fields(i).text();
        show_In(i, standsForEmpty(i, stored) ? QString() : stored);
    }
    ChangedByCode = false;
    txtInfo[General::First].setFocus();
    txtInfo[General::First].selectAll(); // it may have had the focus before its text came
}

void frmGenInfo::save_It()
{
    for (int i = General::Last; i <= General::EMail; ++i)
        Data1.rsGeneral.Fields(i) = toStore(rules[i], entry(i).text());
    Data1.rsGeneral.Update();
}

void frmGenInfo::return_To_Menu()
{
    ways::frmMain().show();
    hide();
}

void frmGenInfo::show_In(int index, const QString& text)
{
    if (index == General::State)
        state_.setText(text);
    else
        txtInfo[index].setText(text);
}

const forms::TextEntry& frmGenInfo::entry(int index) const
{
    if (index == General::State)
        return cmbState;
    return txtInfo[index];
}
