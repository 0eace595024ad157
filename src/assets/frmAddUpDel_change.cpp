// SPDX-License-Identifier: GPL-3.0-or-later
// What is done with an asset that is there: its warranty, updating, deleting and printing it.
#include "assets/frmAddUpDel.h"
#include "assets/frmWar.h"
#include "data/asset_rules.h"
#include "platform/values/failure.h"
#include "reports/frmPrint.h"
#include "reports/reports.h"
#include "search/frmSearchResults.h"
#include "shared/conventions.h"
#include "shared/frmCalendar.h"

#include <exception>

using forms::screen;
using values::Currency;

void frmAddUpDel::cmdWarranty_Click()
{
    screen<frmCalendar>().DateTarget = frmWar::PartsDate;
    screen<frmWar>().load_It();
    screen<frmWar>().show();
    hide();
}

// ---- update

void frmAddUpDel::cmdUpdate_Click()
{
    try {
        update_Asset();
    } catch (const values::RuntimeFailure&) {
        refuse_Date(); // the row isn't cancelled, unlike after a failed save: on purpose
    }
}

void frmAddUpDel::update_Asset()
{
    follow_Price(); // before the check, on purpose: the total keeps step with the box even when the check refuses
    check_Input();
    if (InputBad)
        return;
    cmdPrint.setEnabled(true);
    if (!find_Selected_Asset())
        return;
    auto& assets = Data1.rsInventory;
    if (txtDescription.text().isEmpty())
        txtDescription.setText("None");
    put_Fields(assets);
    assets.Fields(Inventory::Purchased) = optPurNewUsed[0].value() ? "New" : "Used";
    assets.Update();
    conventions::MsgBox("            Asset Has Been Updated!", forms::box::Information);
}

void frmAddUpDel::follow_Price()
{
    if (txtPPrice.text() == SavedPrice)
        return;
    asset_rules::moveAssetValue(Data1.rsGeneral, Currency::parse(SavedPrice), Currency::parse(txtPPrice.text()));
    SavedPrice = txtPPrice.text();
}

// ---- delete

void frmAddUpDel::cmdDelete_Click()
{
    if (!conventions::confirmed(
            "Deleting This Asset Will Be Permanent...Continue?", forms::box::Exclamation + forms::box::YesNo))
        return;
    if (!find_Selected_Asset())
        return;
    // Told before it is done, on purpose.
    conventions::MsgBox("            Asset Has Been Deleted!", forms::box::Information);
    Data1.rsInventory.Delete();
    Data1.rsInventory.Update();
    // What stands in the box, not SavedPrice, on purpose: a price that was typed and not updated makes the total drift.
    asset_rules::moveAssetValue(Data1.rsGeneral, Currency::parse(txtPPrice.text()), {});
    screen<frmSearchResults>().FromSearchScreen = false;
    hide();
    ways::frmMain().show();
}

// ---- print

void frmAddUpDel::cmdPrint_Click()
{
    try {
        print_Asset();
    } catch (const std::exception&) {
        Data1.rsPrint.CancelUpdate();
        conventions::MsgBox(
            "Error Printing Report...Please Ensure Printer Is Turned On And Working Properly!", forms::box::Stop);
    }
}

// The asset as it stands on the screen, saved or not.
void frmAddUpDel::print_Asset()
{
    if (reports::report_Guard())
        return;
    check_Input();
    if (InputBad)
        return;
    screen<frmPrint>().clear_Print_Database();
    auto& staged = Data1.rsPrint;
    staged.AddNew();
    staged.Fields(Print::ID) = "1"; // whatever the asset's own is
    put_Fields(staged);
    staged.Update();
    Data1.Home.commitPending(); // here, so that a refused write is told as a failed print
    reports::show_AssetReport();
}
