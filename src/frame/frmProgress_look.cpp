// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/frmProgress.h"
#include "platform/forms/look.h"
#include "shared/conventions.h"

#include <QWidget>

void frmProgress::look()
{
    setTitle(conventions::Title);
    lblHead[0].setCaption("Please Wait...");
    lblHead[1].setCaption("Updating and Saving Database Changes");
    lblHead[2].setCaption(conventions::Footer);
    lblHead[1].nameFor(pbSave);

    forms::look::Page page(*this, forms::look::PageSize::Own);
    page.title(lblHead[0]);
    lblHead[1].setRole(forms::TextRole::Instruction);
    page.add(lblHead[1]);
    page.space(1);
    pbSave.widget()->setMinimumWidth(forms::look::grid(48));
    page.add(pbSave);
    page.space(1);
    page.foot(nullptr, &lblHead[2]);
}
