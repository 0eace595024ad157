// SPDX-License-Identifier: GPL-3.0-or-later
#include "lists/editor_look.h"
#include "lists/frmUpdate.h"

#include <QGridLayout>

namespace {

// Between the rows, so that the fields above and below it align.
void addInstruction(QGridLayout& rows, forms::Label& instruction)
{
    instruction.setRole(forms::TextRole::Instruction);
    const int row = rows.rowCount();
    rows.setRowMinimumHeight(row, forms::look::grid(4));
    rows.addWidget(instruction.widget(), row, 0, 1, 2, Qt::AlignBottom);
}

} // namespace

void frmUpdate::look()
{
    lblHead4.setCaption("Change Location");
    lblHead2.setCaption("First, Select Name To Be Changed");
    lblHead3.setCaption("Second, Type The New Name");
    lblHead5.setCaption("Finally, Select Change To Finish");
    lblChoice.setCaption("Current");
    lblHead1.setCaption("New");
    const editing::EditorParts parts{*this, lblHead4, cmdUpdate, cmdCancel, lblSelIn, lblCopyright};
    forms::look::configure({
        {cmbCat, 0, " Select The Name To Be Changed "},
        {txtNew, 1, " Enter Name Change Here ", 254},
    });
    editing::lookOf(parts, {cmdUpdate, 2, "C&hange", " Click Here To Complete Name Change ", "pencil"});
    forms::behaviours::selectOnClick(txtNew);
    forms::behaviours::selectOnFocus(txtNew);
    cmdUpdate.Click = [this] { cmdUpdate_Click(); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };

    cmbCat.setWidthInCharacters(editing::FieldWidth);
    txtNew.setWidthInCharacters(editing::FieldWidth);
    forms::look::FieldRows rows;
    addInstruction(*rows.layout(), lblHead2);
    rows.row(lblChoice, {&cmbCat});
    addInstruction(*rows.layout(), lblHead3);
    rows.row(lblHead1, {&txtNew});
    addInstruction(*rows.layout(), lblHead5);
    editing::layOut(parts, rows);
}
