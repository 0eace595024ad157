// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmImported.h"

#include "tools/exit_codes.h"
#include "tools/outcome_look.h"

#include <QDir>

frmImported::frmImported()
    : forms::Form("frmImported")
{
    lblHead.setCaption("The Assets Are Imported");
    outcome::lookOf(
        {*this, lblHead, {&lblTell[0], &lblTell[1], &lblTell[2], &lblTell[3]}, cmdClose, lblSelIn, lblCopyright});
}

void frmImported::Form_Unload(bool& /*cancel*/)
{
    forms::endProcess(exit_code::Done);
}

void frmImported::tell(const importing::Plan& plan, const importing::Result& result, const QString& wrongFile)
{
    QStringList come(QStringLiteral("Imported: %1").arg(worth(static_cast<int>(plan.assets.size()), plan.sum)));
    come += importing::broughtBesidesAssets(plan);
    lblTell[0].setCaption(QStringLiteral("%1.\nThe household holds %2 now.").arg(come.join(", "), result.summary));
    lblTell[1].setCaption(wrongFile.isEmpty()
            ? QString()
            : QStringLiteral("The rows that can't go in are in this file, each with what is wrong. Mend them there and "
                             "import the file:\n%1")
                  .arg(QDir::toNativeSeparators(wrongFile)));
    lblTell[1].setVisible(!wrongFile.isEmpty());
    lblTell[2].setCaption("The household as it was before is put aside. To go back to it, choose Restore From Backup "
                          "and pick the line \"Put aside\", or type this in a terminal:");
    lblTell[3].setCaption(QStringLiteral("kestrill-restore --restore ") + result.putAside);
    setSpokenState(lblTell[0].caption().replace(u'\n', u' '));
    show();
}
