// SPDX-License-Identifier: GPL-3.0-or-later
#include "lists/editing.h"
#include "lists/frmDelField.h"
#include "platform/forms/look.h"
#include "shared/conventions.h"

#include <QGridLayout>
#include <QVBoxLayout>

void frmDelField::look()
{
    setTitle(conventions::Title);
    lblHead.setCaption("Delete Location");
    lblHead2.setCaption("First, Select A Name To Be Deleted");
    lblHead3.setCaption("Second, Click Delete To Finish");
    lblChoice.setCaption("Location");
    lblSelIn.setCaption(conventions::HelpHint);
    lblCopyright.setCaption(conventions::Footer);
    forms::look::dress({
        {cmbCat, 0, " Select The Item You Want To Be Deleted "},
    });
    forms::look::dress({
        {cmdUpdate, 1, "&Delete", " Click Here To Delete Selected Item ", "trash"},
        {cmdCancel, 2, "&Cancel", " Click Here To Return To Previous Window ", "cancel"},
    });
    forms::behaviours::lengthCap(cmbCat, 255);
    cmdUpdate.Click = [this] { cmdUpdate_Click(); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };
    layOut();
}

void frmDelField::layOut()
{
    cmbCat.setWidthInCharacters(40);
    forms::look::FieldRows rows;
    rows.row(lblChoice, {&cmbCat});

    forms::look::Page page(*this);
    page.column()->addStrut(forms::look::fieldWidth(editing::ScreenWidth));
    page.title(lblHead);
    page.space(1);
    page.instruction(lblHead2);
    page.add(rows.layout());
    page.space(1);
    page.instruction(lblHead3);
    page.buttons({&cmdUpdate, &cmdCancel});
    page.space(1);
    page.foot(&lblSelIn, &lblCopyright);
}
