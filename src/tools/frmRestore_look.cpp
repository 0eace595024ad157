// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/look.h"
#include "shared/conventions.h"
#include "tools/frmRestore.h"

#include <QVBoxLayout>
#include <QWidget>

namespace {

constexpr int LineLength = 74; // characters
constexpr int RowsInSight = 10;
constexpr int LeastRows = 4;

} // namespace

void frmRestore::look()
{
    setTitle(conventions::Title);
    lblHead.setCaption("Restore From Backup");
    lblTell.setCaption("Choose the backup to go back to. What there is today is put aside first, and can be brought "
                       "back in the same way.");
    lblToday.setCaption("Today's file: being read...");
    lblList.setCaption("&Backups, the newest first");
    lblList.nameFor(lstBackups);
    lblSelIn.setCaption(conventions::HelpHint);
    lblCopyright.setCaption(conventions::Footer);
    lstBackups.setColumns(
        backups::headings(), {"12/30/2026 12:30 PM", "Earlier close", "32,000", "$1,000,000.00", "Damaged or foreign"});
    lstBackups.alignRight(2);
    lstBackups.alignRight(3);
    lstBackups.setRows(RowsInSight, LeastRows);
    forms::look::configure({{lstBackups, 0, " Choose The Backup To Go Back To "}});
    forms::look::configure({
        {cmdRestore, 1, "&Restore...", " Click Here To Go Back To The Chosen Backup ", "reset"},
        {cmdClose, 2, "&Close", " Click Here To Leave Everything As It Is ", "exit"},
    });
    cmdRestore.setDefault(true);

    lstBackups.Click = [this] { lstBackups_Click(); };
    cmdRestore.Click = [this] { cmdRestore_Click(); };
    cmdClose.Click = [this] { close(); };
    tmRead.Timer = [this] { tmRead_Timer(); };
    layOut();
}

void frmRestore::layOut()
{
    lblToday.setRole(forms::TextRole::Instruction);
    lblTell.wrapAt(LineLength);
    lblState.wrapAt(LineLength);
    lblState.widget()->setMinimumHeight(forms::look::grid(4)); // two lines
    forms::look::keepPlace(pbRestore);

    auto* list = new QVBoxLayout;
    list->setSpacing(forms::look::grid(1) / 2);
    for (forms::Control* control :
        std::initializer_list<forms::Control*>{&lblTell, &lblToday, &lblList, &lstBackups, &lblState, &pbRestore})
        list->addWidget(control->widget());

    forms::look::Page page(*this);
    page.title(lblHead);
    page.add(list);
    page.space(1);
    page.buttons({&cmdRestore, &cmdClose});
    page.foot(&lblSelIn, &lblCopyright);
}
