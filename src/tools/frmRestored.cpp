// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmRestored.h"

#include "tools/exit_codes.h"
#include "tools/outcome_look.h"

frmRestored::frmRestored()
    : forms::Form("frmRestored")
{
    lblHead.setCaption("The Backup Is Restored");
    outcome::lookOf({*this, lblHead, {&lblTell[0], &lblTell[1], &lblTell[2]}, cmdClose, lblSelIn, lblCopyright});
}

void frmRestored::Form_Unload(bool& /*cancel*/)
{
    forms::endProcess(exit_code::Done);
}

void frmRestored::tell(const QString& made, const restoring::Result& result)
{
    const QString& putAside = result.putAside;
    const QString doubt = result.doubt.isEmpty() ? QString() : u' ' + restoring::doubtText(result);
    lblTell[0].setCaption(
        QStringLiteral("The household is as it was at the backup of %1: %2.").arg(made, result.summary) + doubt);
    lblTell[1].setCaption(putAside.isEmpty()
            ? QStringLiteral("There was no file before, so there is none to go back to.")
            : QStringLiteral("The list that was there until now is put aside. To go back to it, choose Restore From "
                             "Backup again and pick the line \"Put aside\", or type this in a terminal:"));
    lblTell[2].setCaption(putAside.isEmpty() ? QString() : QStringLiteral("kestrill-restore --restore ") + putAside);
    setSpokenState(lblTell[0].caption());
    show();
}
