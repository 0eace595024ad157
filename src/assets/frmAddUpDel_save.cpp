// SPDX-License-Identifier: GPL-3.0-or-later
// Checking and saving the asset on the screen.
#include "assets/frmAddUpDel.h"
#include "assets/frmWar.h"
#include "data/name_markers.h"
#include "platform/values/date.h"
#include "platform/values/failure.h"
#include "platform/values/text.h"
#include "shared/conventions.h"

#include <tuple>

using forms::screen;

/// A field without which no asset is saved.
struct frmAddUpDel::Requirement {
    forms::TextEntry& field;
    bool (*isUnmet)(const QString& text);
    const char* message;
    const char* replacement = nullptr; ///< what the field then holds
};

namespace {

bool isEmpty(const QString& text)
{
    return text.isEmpty();
}

bool isNoDate(const QString& text)
{
    return text.isEmpty() || values::equalUpper(text, "mm/dd/yyyy");
}

bool isFuture(const QString& text)
{
    return values::Date::parse(text) > values::Today();
}

// "$0.00" is a price.
bool isNoPrice(const QString& text)
{
    return text.isEmpty() || text == "$.00";
}

constexpr Inventory::Column warrantyColumns[] = {Inventory::PartsType, Inventory::PartsAmount, Inventory::PartsCoverage,
    Inventory::PartsMonth, Inventory::PartsDay, Inventory::PartsYear, Inventory::LaborType, Inventory::LaborAmount,
    Inventory::LaborCoverage, Inventory::LaborMonth, Inventory::LaborDay, Inventory::LaborYear,
    Inventory::WarrantyDescription};

} // namespace

// ---- the check

void frmAddUpDel::check_Input()
{
    InputBad = false;
    try {
        if (!has_All_Required())
            return;
        settle_Receipt_Location();
        if (!optPurNewUsed[0].value() && !optPurNewUsed[1].value()) {
            // Only a hint, on purpose: the save goes on.
            conventions::MsgBox("Please Indicate How The Asset Was Purchased...New or Used.", forms::box::Exclamation);
            optPurNewUsed[0].setFocus();
            return;
        }
        if (txtDescription.text().isEmpty())
            txtDescription.setText("None");
    } catch (const values::RuntimeFailure&) {
        refuse_Date();
    }
}

bool frmAddUpDel::has_All_Required()
{
    const auto isNoLocation = [](const QString& text) { return text.isEmpty() || text == names::LocationMarker; };
    const auto isNoCategory = [](const QString& text) { return text.isEmpty() || text == names::CategoryMarker; };
    const Requirement requirements[] = {
        {cmbLoc, isNoLocation, "The Location Of The Asset Must Be Selected Before Saving!"},
        {cmbCat, isNoCategory, "The Category Of The Asset Must Be Selected Before Saving!"},
        {cmbType, isEmpty, "An Item Must Be Selected Before Saving Asset!"},
        {cmbYear, isEmpty, "The Year The Asset Was Made Must Be Entered Before Saving!", "2005"},
        {txtMake, isEmpty,
            "The Make Of The Asset Must Be Entered Before Saving!  If Unavailable Please Type \"Unknown\"", "Unknown"},
        {txtMod, isEmpty,
            "The Model Of The Asset Must Be Entered Before Saving!  If Unavailable Please Type \"Unknown\"", "Unknown"},
        {txtSerial, isEmpty,
            "The Serial Number Of The Asset Must Be Entered Before Saving...If Unavailable Please Type \"Unknown\"",
            "Unknown"},
        {txtPur, isNoDate, "The Purchase Date Of The Asset Must Be Entered Before Saving!"},
        {txtPur, isFuture, "The Purchase Date Can Not Be A Future Date!"},
        {txtPPrice, isNoPrice, "The Purchase Price Of The Asset Must Be Entered Before Saving!"},
    };
    for (const Requirement& requirement : requirements) {
        if (!requirement.isUnmet(requirement.field.text()))
            continue;
        refuse(requirement);
        return false;
    }
    return true;
}

void frmAddUpDel::refuse(const Requirement& unmet)
{
    conventions::MsgBox(unmet.message, forms::box::Exclamation);
    if (unmet.replacement)
        unmet.field.setText(unmet.replacement);
    unmet.field.setFocus();
    InputBad = true;
}

// A text that stands there although "No" was stepped on last is not specified rather than none: on purpose.
void frmAddUpDel::settle_Receipt_Location()
{
    const QString Loc = txtLoc.text();
    if (values::equalUpper(Loc, "None") || (Loc.isEmpty() && NoReceipt))
        txtLoc.setText("None");
    else if (Loc.isEmpty() || NoReceipt)
        txtLoc.setText("Not Specified");
}

// The one answer to every fault of a save.
void frmAddUpDel::refuse_Date()
{
    conventions::MsgBox(
        "Invalid Purchase Date...Be Sure The Format Is mm/dd/yyyy (Example: 12/25/2005)", forms::box::Exclamation);
    txtPur.setFocus();
    InputBad = true;
}

// ---- the save

void frmAddUpDel::save_It()
{
    check_Input();
    if (InputBad)
        return;
    WarrantyDue = chkWar.value() == 1;
    try {
        store_Asset();
    } catch (const values::RuntimeFailure&) {
        refuse_Date();
        Data1.rsInventory.CancelUpdate();
    }
}

void frmAddUpDel::store_Asset()
{
    add_Asset_Row();
    move_Asset_Value({}, values::Currency::parse(txtPPrice.text()));
    add_To_Item_List();
    if (!ways::frmMain().FromResults)
        tell_And_Go_On();
}

void frmAddUpDel::add_Asset_Row()
{
    auto& assets = Data1.rsInventory;
    assets.AddNew();
    put_Fields(assets);
    assets.Fields(Inventory::Purchased) = optPurNewUsed[0].value() ? "New" : "Used";
    for (const Inventory::Column column : warrantyColumns)
        assets.Fields(column) = "None";
    assets.Update();
}

// What an asset and its printed copy have in common.
void frmAddUpDel::put_Fields(storage::TableView& row)
{
    row.Fields(Inventory::Area) = cmbArea.text();
    for (const auto& [field, column] : plain_Fields())
        row.Fields(column) = field.text();
    row.Fields(Inventory::Amount) = txtPPrice.text();
    row.Fields(Inventory::Receipt) = optRecOnFile[0].value() ? "Yes" : "No";
    row.Fields(Inventory::ReceiptLocation) = txtLoc.text();
    row.Fields(Inventory::Description) = txtDescription.text();
}

void frmAddUpDel::move_Asset_Value(values::Currency less, values::Currency more)
{
    auto& general = Data1.rsGeneral;
    general.Fields(General::AssetValue) = general.Fields(General::AssetValue).currency() - less + more;
    general.Update();
}

void frmAddUpDel::add_To_Item_List()
{
    LocIsNew = CatIsNew = ItemIsNew = true;
    const areas::Area* area = areas::find(cmbArea.text());
    // A table without rows learns nothing.
    if (!area || area->nameTable().RecordCount() == 0 || names_Are_Known(area->nameTable()))
        return;
    auto& table = area->nameTable();
    table.AddNew();
    table.Fields(Names::Location) = cmbLoc.text();
    table.Fields(Names::Category) = cmbCat.text();
    table.Fields(Names::Type) = cmbType.text();
    table.Fields(Names::Standard) = names::Blank;
    table.Update();
    if (area->preparesBeforeTelling && chkClear.value() == 1)
        load_Add_Mode();
}

// Each of the three names in any row, not all in one.
bool frmAddUpDel::names_Are_Known(storage::TableView& table)
{
    const std::tuple<Names::Column, QString, bool&> wanted[] = {
        {Names::Location, cmbLoc.text(), LocIsNew},
        {Names::Category, cmbCat.text(), CatIsNew},
        {Names::Type, cmbType.text(), ItemIsNew},
    };
    for (table.MoveFirst(); !table.atEOF(); table.MoveNext())
        for (const auto& [column, name, isNew] : wanted)
            if (isNew && values::equalUpper(table.Fields(column).text(), name))
                isNew = false;
    return !LocIsNew && !CatIsNew && !ItemIsNew;
}

void frmAddUpDel::tell_And_Go_On()
{
    conventions::MsgBox("Asset Has Been Added To Your Inventory!", forms::box::Information);
    if (chkClear.value() == 1) {
        reset_Fields();
        load_Add_Mode();
    }
    if (chkWar.value() == 1 && WarrantyDue)
        open_Warranty_Of_New_Asset();
    else
        cmbLoc.setFocus();
}

// The new asset is still the current row.
void frmAddUpDel::open_Warranty_Of_New_Asset()
{
    AssetKey = Data1.rsInventory.Fields(Inventory::ID).integer();
    auto& warranty = screen<frmWar>();
    warranty.load_It();
    hide();
    warranty.show();
}
