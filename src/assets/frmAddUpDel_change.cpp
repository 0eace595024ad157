// SPDX-License-Identifier: GPL-3.0-or-later
// What is done with an asset that is there.
#include "assets/frmAddUpDel.h"
#include "assets/frmWar.h"
#include "core/frmCalendar.h"

using forms::screen;

void frmAddUpDel::cmdWarranty_Click()
{
    screen<frmCalendar>().DateTarget = frmWar::PartsDate;
    screen<frmWar>().load_It();
    screen<frmWar>().show();
    hide();
}
