// SPDX-License-Identifier: GPL-3.0-or-later
#include "lists/editor_look.h"
#include "lists/frmAddField.h"

void frmAddField::look()
{
    lblHead.setCaption("Add Location");
    lblHead2.setCaption("First, Type In New Name To Be Added");
    lblHead3.setCaption("Second, Select Add To Finish");
    lblChoice.setCaption("Location");
    const editing::EditorParts parts{*this, lblHead, cmdUpdate, cmdCancel, lblSelIn, lblCopyright};
    forms::look::configure({
        {txtAdd, 0, " Enter Your New Name Here ", 254},
    });
    editing::lookOf(parts, {cmdUpdate, 1, "&Add", " Click Here To Add ", "plus"});
    forms::behaviours::selectOnClick(txtAdd);
    forms::behaviours::selectOnFocus(txtAdd);
    cmdUpdate.Click = [this] { cmdUpdate_Click(); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };
    txtAdd.setWidthInCharacters(editing::FieldWidth);
    editing::layOut(parts, lblHead2, lblChoice, txtAdd, lblHead3);
}
