// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/conventions.h"
#include "lists/editing.h"
#include "lists/frmEditCmbBoxes.h"
#include "platform/forms/look.h"

#include <QVBoxLayout>

void frmEditCmbBoxes::look()
{
    setTitle(conventions::Title);
    lblHead.setCaption("Add/Edit Location");
    lblHead2.setCaption("First, Select An Option");
    lblHead3.setCaption("Second, Select Continue");
    lblSelIn.setCaption(conventions::HelpHint);
    lblCopyright.setCaption(conventions::Footer);
    optEdit[0].setCaption("&Add");
    optEdit[1].setCaption("C&hange");
    optEdit[2].setCaption("&Delete");
    forms::look::dress({
        {optEdit[0], 0, " Select This Option To Add An Item To List, Then Select Continue "},
        {optEdit[1], 1, " Select This Option To Change A Name Currently In List, Then Select Continue "},
        {optEdit[2], 2, " Select This Option To Delete A Name Currently In List, Then Select Continue "},
    });
    forms::look::dress({
        {cmdUpdate, 3, "C&ontinue", " Click Here To Add, Change Or Delete ", "next"},
        {cmdCancel, 4, "&Cancel", " Click Here To Return To Previous Window ", "cancel"},
    });
    cmdUpdate.Click = [this] { cmdUpdate_Click(); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };
    layOut();
}

void frmEditCmbBoxes::layOut()
{
    auto* options = new QVBoxLayout;
    options->setContentsMargins(forms::look::grid(4), 0, 0, 0);
    options->setSpacing(forms::look::grid(1));
    for (int Index = 0; Index < optEdit.count(); ++Index)
        options->addWidget(optEdit[Index].widget(), 0, Qt::AlignLeft);

    forms::look::Page page(*this);
    page.column()->addStrut(forms::look::fieldWidth(editing::ScreenWidth));
    page.title(lblHead);
    page.space(1);
    page.instruction(lblHead2);
    page.add(options);
    page.space(1);
    page.instruction(lblHead3);
    page.buttons({&cmdUpdate, &cmdCancel});
    page.space(1);
    page.foot(&lblSelIn, &lblCopyright);
}
