// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/look.h"
#include "shared/conventions.h"
#include "tools/frmExport.h"

#include <QWidget>

namespace {

constexpr int LineLength = 64; // characters

} // namespace

void frmExport::look()
{
    setTitle(conventions::Title);
    lblHead.setCaption("Export Everything");
    lblTell.setCaption("All that Kestrill holds is written into a new folder: each table for a spreadsheet, all of "
                       "them in one file for other programs, the asset report and the cover sheet as PDF.\n\nThese "
                       "files are not encrypted. Anyone who opens the folder can read them.");
    lblSelIn.setCaption(conventions::HelpHint);
    lblCopyright.setCaption(conventions::Footer);
    forms::look::configure({
        {cmdChoose, 0, "Choose &Folder...", " Click Here To Choose Where The Folder Is Made ", "save"},
        {cmdClose, 1, "&Close", " Click Here To Close This Window ", "exit"},
    });
    cmdChoose.setDefault(true);
    cmdChoose.Click = [this] { cmdChoose_Click(); };
    cmdClose.Click = [this] { close(); };
    tmStart.Timer = [this] { tmStart_Timer(); };

    lblTell.wrapAt(LineLength);
    lblResult.wrapAt(LineLength);
    lblResult.setRole(forms::TextRole::Instruction);
    lblResult.widget()->setMinimumHeight(forms::look::grid(6)); // three lines

    forms::look::Page page(*this);
    page.title(lblHead);
    page.add(lblTell);
    page.space(1);
    page.add(lblResult);
    page.space(1);
    page.buttons({&cmdChoose, &cmdClose});
    page.foot(&lblSelIn, &lblCopyright);
}
