// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/frmPrint.h"

frmPrint::frmPrint()
    : forms::Form("frmPrint")
{
}
