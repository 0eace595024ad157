// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/frmPrint.h"

#include "data/data_store.h"
#include "platform/values/text.h"
#include "reports/data_report.h"
#include "reports/reports.h"
#include "search/frmSearch.h"
#include "shared/conventions.h"
#include "shared/ways.h"

using forms::screen;

namespace {

void tell_Printing_Error()
{
    conventions::MsgBox(
        "Error Printing Report...Please Ensure Printer Is Turned On And Working Properly!", forms::box::Stop);
}

} // namespace

frmPrint::frmPrint()
    : PrintMenu("frmPrint", 3)
{
    look();
}

void frmPrint::Form_Activate()
{
    CurrentScreen = Number;
}

void frmPrint::Form_Unload(bool& cancel)
{
    cancel = true;
    conventions::confirm_Close(*this);
}

void frmPrint::cmdCover_Click()
{
    if (reports::report_Guard())
        return;
    try {
        reports::CoverSheet().show();
    } catch (const std::exception&) {
        tell_Printing_Error();
    }
}

// The Indoor button leaves the focus where it is: on purpose.
void frmPrint::cmdInPrint_Click()
{
    print_Area("Indoor", nullptr);
}

void frmPrint::cmdOutPrint_Click()
{
    print_Area("Outdoor", &cmdOutPrint[2]);
}

void frmPrint::cmdAutoPrint_Click()
{
    print_Area("Mobile", &cmdAutoPrint[1]);
}

void frmPrint::print_Area(const QString& area, forms::CommandButton* thenFocused)
{
    if (reports::report_Guard())
        return;
    const forms::WaitPointer wait;
    CustomPrint = true;
    PrintArea = values::upper(area);
    clear_Print_Database();
    print_Assets();
    if (thenFocused)
        thenFocused->setFocus();
    hide_Print_Progress();
}

// Where there is nothing to print the progress display stays up, and a failure isn't told here: both on purpose.
void frmPrint::cmdAllPrint_Click()
{
    if (reports::report_Guard())
        return;
    clear_Print_Database();
    if (Data1.rsInventory.RecordCount() == 0) {
        conventions::MsgBox("             No Assets Found To Print!", forms::box::Exclamation);
        return;
    }
    const forms::WaitPointer wait;
    for (Data1.rsInventory.MoveFirst(); !Data1.rsInventory.atEOF(); Data1.rsInventory.MoveNext())
        stage_Asset();
    Data1.rsPrint.Update();
    Data1.Home.commitPending(); // first, so that no report stands open over a write that was refused
    reports::show_AssetReport();
    cmdAllPrint[3].setFocus();
    hide_Print_Progress();
}

void frmPrint::cmdCustom_Click()
{
    if (reports::report_Guard())
        return;
    ways::frmMain().FromMenu = false;
    CustomPrint = true;
    hide_Print_Progress();
    auto& search = screen<frmSearch>();
    search.lblHead[0].setCaption("Search For Assets To Print");
    search.show();
    hide();
}

void frmPrint::cmdFillOutForm_Click()
{
    if (reports::report_Guard())
        return;
    try {
        reports::FillOutForm().show();
        cmdFillOutForm[0].setFocus();
        hide_Print_Progress();
    } catch (const std::exception&) {
        tell_Printing_Error();
    }
}

void frmPrint::cmdBack_Click()
{
    CustomPrint = false;
    hide_Print_Progress();
    ways::frmMain().show();
    hide();
}

void frmPrint::print_Assets()
{
    try {
        CustomPrint = false;
        if (Data1.rsPrint.RecordCount() > 0)
            clear_Print_Database();
        if (Data1.rsInventory.RecordCount() > 0)
            for (Data1.rsInventory.MoveFirst(); !Data1.rsInventory.atEOF(); Data1.rsInventory.MoveNext())
                if (values::equalUpper(Data1.rsInventory.Fields(Inventory::Area).text(), PrintArea))
                    stage_Asset();
        if (!CustomPrint) {
            conventions::MsgBox("           No Assets Found To Print!", forms::box::Exclamation);
            return;
        }
        Data1.rsPrint.Update();
        Data1.Home.commitPending(); // here, so that a refused write is told as a failed print
        reports::show_AssetReport();
    } catch (const std::exception&) {
        tell_Printing_Error();
    }
}

// Copies the current asset; the row is stored when the next one is added.
void frmPrint::stage_Asset()
{
    stageAsset();
    CustomPrint = true;
}
