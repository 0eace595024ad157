// SPDX-License-Identifier: GPL-3.0-or-later
#include "lists/editing.h"
#include "lists/frmAddField.h"
#include "platform/forms/look.h"
#include "shared/conventions.h"

#include <QGridLayout>
#include <QVBoxLayout>

void frmAddField::look()
{
    setTitle(conventions::Title);
    lblHead.setCaption("Add Location");
    lblHead2.setCaption("First, Type In New Name To Be Added");
    lblHead3.setCaption("Second, Select Add To Finish");
    lblChoice.setCaption("Location");
    lblSelIn.setCaption(conventions::HelpHint);
    lblCopyright.setCaption(conventions::Footer);
    forms::look::dress({
        {txtAdd, 0, " Enter Your New Name Here ", 254},
    });
    forms::look::dress({
        {cmdUpdate, 1, "&Add", " Click Here To Add ", "plus"},
        {cmdCancel, 2, "&Cancel", " Click Here To Return To Previous Window ", "cancel"},
    });
    forms::behaviours::selectOnClick(txtAdd);
    forms::behaviours::selectOnFocus(txtAdd);
    cmdUpdate.Click = [this] { cmdUpdate_Click(); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };
    layOut();
}

void frmAddField::layOut()
{
    txtAdd.setWidthInCharacters(40);
    forms::look::FieldRows rows;
    rows.row(lblChoice, {&txtAdd});

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
