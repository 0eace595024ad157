// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/settings.h"

namespace settings {

int remembered(General::Column column)
{
    if (Data1.rsGeneral.atBOF())
        Data1.rsGeneral.MoveNext();
    else
        Data1.rsGeneral.MoveFirst();
    return Data1.rsGeneral.Fields(column) == "Checked" ? 1 : 0;
}

void remember(General::Column column, int value)
{
    Data1.rsGeneral.Fields(column) = value == 1 ? "Checked" : "Unchecked";
    Data1.rsGeneral.Update();
}

} // namespace settings
