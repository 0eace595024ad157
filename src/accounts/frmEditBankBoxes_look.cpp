// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounts/frmEditBankBoxes.h"

frmEditBankBoxes::frmEditBankBoxes()
    : AccountMenu("frmEditBankBoxes", 15,
        {"Add/Edit Financial Account",
            {
                {"&Add", "plus", " Select This Option To Add A Financial Account, Then Select Continue "},
                {"&View / Update", "pencil",
                    " Select This Option To View or Update An Existing Financial Account, Then Select Continue "},
                {"&Delete", "trash",
                    " Select This Option To Delete A Financial Account You No Longer Have Or Want, Then Select "
                    "Continue "},
            },
            " Click Here To Continue To Financial Account Information ",
            " Click Here To Return To The Personal Information Window ", 8001})
{
    cmdUpdate.setDefault(true);
    for (int Index = 0; Index < optEdit.count(); ++Index)
        optEdit[Index].Click = [this, Index] { optEdit_Click(Index); };
    cmdUpdate.Click = [this] { cmdUpdate_Click(); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };
}
