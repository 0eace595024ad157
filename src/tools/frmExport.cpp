// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmExport.h"

#include "platform/forms/boxes/file_choice.h"
#include "shared/conventions.h"
#include "tools/exit_codes.h"
#include "tools/exporting.h"
#include "tools/shown_progress.h"
#include "tools/source.h"

#include <QDir>

frmExport::frmExport()
    : forms::Form("frmExport")
{
    look();
}

void frmExport::Form_Load()
{
    tmStart.setEnabled(true);
}

void frmExport::Form_Unload(bool& /*cancel*/)
{
    forms::endProcess(exit_code::Done);
}

// Whoever has asked for an export is asked at once where to.
void frmExport::tmStart_Timer()
{
    tmStart.setEnabled(false);
    cmdChoose_Click();
}

void frmExport::cmdChoose_Click()
{
    const QString folder = forms::chooseFolder("Choose The Folder For The Export", QDir::homePath());
    if (folder.isEmpty())
        return;
    try {
        export_To(exporting::freshFolderIn(folder));
    } catch (const Refusal& refusal) {
        say(refusal.words(), refusal.code() == exit_code::Declined ? forms::box::Information : forms::box::Stop);
    } catch (const UnreadableHousehold& failure) {
        say(failure.reason(), forms::box::Stop);
    }
}

void frmExport::say(const QString& words, int flags)
{
    lblResult.setCaption(words);
    conventions::MsgBox(words, flags);
}

void frmExport::export_To(const QString& folder)
{
    lblResult.setCaption("Please Wait...");
    const Household household(sourceFile({}));
    {
        ShownProgress progress("Everything is being written...", window());
        exporting::write(household, folder, exporting::Former::Kept, progress.told());
    }
    lblResult.setCaption(
        QStringLiteral("Written: %1, in the folder\n%2").arg(household.summary(), QDir::toNativeSeparators(folder)));
    announce(lblResult.caption().replace(u'\n', u' '));
    cmdClose.setFocus();
}
