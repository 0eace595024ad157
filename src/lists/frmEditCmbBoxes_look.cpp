// SPDX-License-Identifier: GPL-3.0-or-later
#include "lists/frmEditCmbBoxes.h"

frmEditCmbBoxes::frmEditCmbBoxes()
    : OptionMenu("frmEditCmbBoxes", 12,
        {"Add/Edit Location",
            {
                {"&Add", "plus", " Select This Option To Add An Item To List, Then Select Continue "},
                {"C&hange", "pencil", " Select This Option To Change A Name Currently In List, Then Select Continue "},
                {"&Delete", "trash", " Select This Option To Delete A Name Currently In List, Then Select Continue "},
            },
            " Click Here To Add, Change Or Delete ", " Click Here To Return To Previous Window ", 0})
{
    cmdUpdate.Click = [this] { cmdUpdate_Click(); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };
}
