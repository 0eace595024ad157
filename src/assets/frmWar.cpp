// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/frmWar.h"

#include "assets/find_asset.h"
#include "platform/values/date.h"
#include "platform/values/text.h"
#include "shared/conventions.h"
#include "shared/frmCalendar.h"
#include "shared/ways.h"

using conventions::None;
using forms::screen;

namespace {

// February has 29 days in every year, and what is no month has 31.
int daysOf(const QString& month)
{
    const QString name = values::upper(month);
    if (name == "SEP" || name == "APR" || name == "JUN" || name == "NOV")
        return 30;
    return name == "FEB" ? 29 : 31;
}

} // namespace

/// A box and the column that it shows.
struct frmWar::Entry {
    enum Kind { CoverageType, Amount, Plain };

    forms::TextEntry& box;
    Inventory::Column column;
    Kind kind = Plain;

    QString shown(const QString& stored) const
    {
        if (kind == CoverageType)
            return stored; // "None" is one of the types
        const QString text = conventions::withoutNone(stored);
        return kind == Amount ? values::currencyFormat(text) : text;
    }

    QString stored() const
    {
        const QString text = textOr(kind == CoverageType ? QStringLiteral("Unknown") : None);
        return kind == Amount ? values::groupedByThrees(text) : text;
    }

    QString textOr(const QString& whenEmpty) const { return box.text().isEmpty() ? whenEmpty : box.text(); }
};

frmWar::frmWar()
    : NumberedScreen("frmWar", 9)
{
    look();
}

void frmWar::load_It()
{
    if (!find_Its_Asset())
        return;
    txtName.setText(Data1.rsInventory.Fields(Inventory::Type).text());
    for (const Entry& entry : entries())
        entry.box.setText(entry.shown(Data1.rsInventory.Fields(entry.column).text()));
}

void frmWar::Form_Activate()
{
    CurrentScreen = Number;
}

void frmWar::Form_Unload(bool& cancel)
{
    cancel = true;
    cmdCancel_Click();
}

// ---- fields

void frmWar::month_Change(const Expiry& end)
{
    end.day.clear();
    QStringList days;
    for (int day = 1; day <= daysOf(end.month.text()); ++day)
        days.append(QString::number(day));
    end.day.addItems(days);
}

void frmWar::month_Click(const Expiry& end)
{
    month_Change(end);
    end.month.selectAll();
}

void frmWar::day_GotFocus(const Expiry& end)
{
    if (end.day.listCount() != 0) {
        end.day.selectAll();
        return;
    }
    conventions::MsgBox("          Please Select A Month First!", forms::box::Information);
    end.month.setFocus();
}

void frmWar::year_KeyDown(const Expiry& end, int& KeyCode)
{
    if (!forms::behaviours::isMovementKey(KeyCode))
        KeyCode = forms::key::Refused;
    end.year.selectAll();
}

// Unlike in an amount, "/" is refused.
void frmWar::coverage_KeyPress(int& KeyAscii)
{
    if (KeyAscii != '.')
        forms::behaviours::takeDigits(KeyAscii);
}

void frmWar::picDate_Click(const Expiry& end)
{
    auto& calendar = screen<frmCalendar>();
    cmdCancel.setEnabled(false);
    cmdSave.setEnabled(false);
    if (end.year.text().isEmpty() || end.month.text().isEmpty() || end.day.text().isEmpty()) {
        calendar.calDate.setValue(values::Today());
    } else {
        calendar.calDate.setDay(end.day.text().toInt());
        calendar.calDate.setMonth(static_cast<int>(frmCalendar::MonthNames.indexOf(end.month.text())) + 1);
        calendar.calDate.setYear(end.year.text().toInt());
    }
    const auto give_Back = [this] {
        cmdCancel.setEnabled(true);
        cmdSave.setEnabled(true);
    };
    const auto take_Date = [&end](const forms::MonthCalendar& date) { write_Date(end, date); };
    calendar.show_For({*this, end.DateTarget, give_Back, take_Date});
}

// The month goes first, for it refills the list of days. A number that no month has writes nothing.
void frmWar::write_Date(const Expiry& end, const forms::MonthCalendar& date)
{
    if (date.Month() >= 1 && date.Month() <= frmCalendar::MonthNames.size())
        end.month.setText(frmCalendar::MonthNames[date.Month() - 1]);
    end.day.setText(QString::number(date.Day()));
    end.year.setText(QString::number(date.Year()));
}

// ---- buttons

void frmWar::cmdSave_Click()
{
    if (!find_Its_Asset())
        return;
    auto& asset = Data1.rsInventory;
    for (const Entry& entry : entries())
        asset.Fields(entry.column) = entry.stored();
    asset.Update();
    conventions::MsgBox("Your Warranty Information Has Been Saved!", forms::box::Information);
    return_To_Asset();
}

void frmWar::cmdCancel_Click()
{
    WarChanged = false;
    if (find_Its_Asset())
        for (const Entry& entry : entries()) // an emptied type is compared as "None" here, not "Unknown": on purpose
            WarChanged = WarChanged || entry.textOr(None) != Data1.rsInventory.Fields(entry.column).text();
    if (WarChanged
        && !conventions::confirmed(
            "Changes To Warranty Information Will Be Lost...Continue?", forms::box::Question + forms::box::YesNo))
        return;
    return_To_Asset();
}

void frmWar::return_To_Asset()
{
    hide();
    ways::frmAddUpDel().show();
}

// ---- the row

bool frmWar::find_Its_Asset()
{
    return findAsset(ways::frmAddUpDel().AssetKey);
}

// In the order in which they are read, written and compared. A month stands before its day, which it would empty.
std::array<frmWar::Entry, 13> frmWar::entries()
{
    return {{{cmbParts, Inventory::PartsType, Entry::CoverageType}, {txtPAmt, Inventory::PartsAmount, Entry::Amount},
        {txtPCover, Inventory::PartsCoverage}, {cmbPMonth, Inventory::PartsMonth}, {cmbPDay, Inventory::PartsDay},
        {cmbPYear, Inventory::PartsYear}, {cmbLabor, Inventory::LaborType, Entry::CoverageType},
        {txtLAmt, Inventory::LaborAmount, Entry::Amount}, {txtLCover, Inventory::LaborCoverage},
        {cmbLMonth, Inventory::LaborMonth}, {cmbLDay, Inventory::LaborDay}, {cmbLYear, Inventory::LaborYear},
        {txtDescription, Inventory::WarrantyDescription}}};
}
