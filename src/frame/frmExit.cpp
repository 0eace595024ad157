// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/frmExit.h"

frmExit::frmExit()
    : forms::Form("frmExit")
{
    look();
    tmExit.setEnabled(true);
}

void frmExit::tell(const QString& trouble)
{
    lblTrouble.setCaption(trouble);
    lblTrouble.setVisible(!trouble.isEmpty());
    show();
}

void frmExit::Form_Unload(bool& cancel)
{
    cancel = true;
}

void frmExit::tmExit_Timer()
{
    forms::endProcess(0);
}
