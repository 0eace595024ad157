// SPDX-License-Identifier: GPL-3.0-or-later
#include "lists/editor_look.h"
#include "lists/frmDelField.h"

void frmDelField::look()
{
    lblHead.setCaption("Delete Location");
    lblHead2.setCaption("First, Select A Name To Be Deleted");
    lblHead3.setCaption("Second, Click Delete To Finish");
    lblChoice.setCaption("Location");
    const editing::EditorParts parts{*this, lblHead, cmdUpdate, cmdCancel, lblSelIn, lblCopyright};
    forms::look::configure({
        {cmbCat, 0, " Select The Item You Want To Be Deleted "},
    });
    editing::lookOf(parts, {cmdUpdate, 1, "&Delete", " Click Here To Delete Selected Item ", "trash"});
    cmdUpdate.setDestructive(true);
    forms::behaviours::lengthCap(cmbCat, 255);
    cmdUpdate.Click = [this] { cmdUpdate_Click(); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };
    cmbCat.setWidthInCharacters(editing::FieldWidth);
    editing::layOut(parts, lblHead2, lblChoice, cmbCat, lblHead3);
}
