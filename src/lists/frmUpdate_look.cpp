// SPDX-License-Identifier: GPL-3.0-or-later
#include "lists/editing.h"
#include "lists/frmUpdate.h"
#include "platform/forms/look.h"
#include "shared/conventions.h"

#include <QGridLayout>
#include <QVBoxLayout>

namespace {

constexpr int FieldWidth = 40; // characters

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
    setTitle(conventions::Title);
    lblHead4.setCaption("Change Location");
    lblHead2.setCaption("First, Select Name To Be Changed");
    lblHead3.setCaption("Second, Type The New Name");
    lblHead5.setCaption("Finally, Select Change To Finish");
    lblChoice.setCaption("Current");
    lblHead1.setCaption("New");
    lblSelIn.setCaption(conventions::HelpHint);
    lblCopyright.setCaption(conventions::Footer);
    forms::look::dress({
        {cmbCat, 0, " Select The Name To Be Changed "},
        {txtNew, 1, " Enter Name Change Here ", 254},
    });
    forms::look::dress({
        {cmdUpdate, 2, "C&hange", " Click Here To Complete Name Change ", "pencil"},
        {cmdCancel, 3, "&Cancel", " Click Here To Return To Previous Window ", "cancel"},
    });
    forms::behaviours::selectOnClick(txtNew);
    forms::behaviours::selectOnFocus(txtNew);
    cmdUpdate.Click = [this] { cmdUpdate_Click(); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };
    layOut();
}

void frmUpdate::layOut()
{
    cmbCat.setWidthInCharacters(FieldWidth);
    txtNew.setWidthInCharacters(FieldWidth);
    forms::look::FieldRows rows;
    addInstruction(*rows.layout(), lblHead2);
    rows.row(lblChoice, {&cmbCat});
    addInstruction(*rows.layout(), lblHead3);
    rows.row(lblHead1, {&txtNew});
    addInstruction(*rows.layout(), lblHead5);

    forms::look::Page page(*this);
    page.column()->addStrut(forms::look::fieldWidth(editing::ScreenWidth));
    page.title(lblHead4);
    page.add(rows.layout());
    page.buttons({&cmdUpdate, &cmdCancel});
    page.space(1);
    page.foot(&lblSelIn, &lblCopyright);
}
