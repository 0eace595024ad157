// SPDX-License-Identifier: GPL-3.0-or-later
// Checking and saving the asset on the screen.
#include "assets/frmAddUpDel.h"
#include "assets/frmWar.h"
#include "data/asset_rules.h"
#include "platform/values/failure.h"
#include "platform/values/text.h"
#include "shared/conventions.h"

#include <tuple>

using forms::screen;

// ---- the check

void frmAddUpDel::check_Input()
{
    InputBad = false;
    try {
        if (!has_All_Required())
            return;
        txtLoc.setText(asset_rules::receiptLocation(txtLoc.text(), NoReceipt));
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
    for (const asset_rules::Requirement& requirement : asset_rules::requirements()) {
        if (!requirement.isUnmet(field_Of(requirement.column).text()))
            continue;
        refuse(requirement);
        return false;
    }
    return true;
}

forms::TextEntry& frmAddUpDel::field_Of(Inventory::Column column)
{
    for (const auto& [field, its] : plain_Fields())
        if (its == column)
            return field;
    return txtPPrice;
}

void frmAddUpDel::refuse(const asset_rules::Requirement& unmet)
{
    conventions::MsgBox(unmet.message, forms::box::Exclamation);
    forms::TextEntry& field = field_Of(unmet.column);
    if (unmet.replacement)
        field.setText(unmet.replacement);
    field.setFocus();
    InputBad = true;
}

// The one answer to every fault of a save.
void frmAddUpDel::refuse_Date()
{
    conventions::MsgBox(asset_rules::InvalidDate, forms::box::Exclamation);
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
    asset_rules::moveAssetValue(Data1.rsGeneral, {}, values::Currency::parse(txtPPrice.text()));
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
    asset_rules::putNoWarranty(assets);
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

void frmAddUpDel::add_To_Item_List()
{
    LocIsNew = CatIsNew = ItemIsNew = true;
    const areas::Area* area = areas::find(cmbArea.text());
    // A table without rows learns nothing.
    if (!area || area->nameTable().RecordCount() == 0 || names_Are_Known(area->nameTable()))
        return;
    asset_rules::addNames(area->nameTable(), cmbLoc.text(), cmbCat.text(), cmbType.text());
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
