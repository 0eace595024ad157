// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/data_store.h"
#include "reports/frmPrint.h"
#include "search/frmSearch.h"

using forms::screen;

void frmPrint::clear_Print_Database()
{
    auto& search = screen<frmSearch>();
    search.raise_Progress();
    search.pbSearch.setValue(0);
    if (Data1.rsPrint.RecordCount() == 0)
        return;
    // The count of the assets, for which the bar is meant; it isn't advanced here.
    if (Data1.rsInventory.RecordCount() != 0)
        search.pbSearch.setMax(Data1.rsInventory.RecordCount());
    for (Data1.rsPrint.MoveFirst(); !Data1.rsPrint.atEOF(); Data1.rsPrint.MoveNext()) {
        Data1.rsPrint.Delete();
        Data1.rsPrint.Update();
    }
}

void frmPrint::hide_Print_Progress()
{
    auto& search = screen<frmSearch>();
    search.pbSearch.setValue(0);
    search.hide_Progress();
}
