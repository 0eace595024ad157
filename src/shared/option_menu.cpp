// SPDX-License-Identifier: GPL-3.0-or-later
#include "shared/option_menu.h"

#include "platform/forms/look.h"
#include "shared/conventions.h"

#include <QGridLayout>

OptionMenu::OptionMenu(const QString& name, int number, const MenuLook& look)
    : NumberedScreen(name, number)
{
    setTitle(conventions::Title);
    lblHead.setCaption(look.heading);
    lblHead2.setCaption("First, Select An Option");
    lblHead3.setCaption("Second, Select Continue");
    lblSelIn.setCaption(conventions::HelpHint);
    lblCopyright.setCaption(conventions::Footer);
    for (int Index = 0; Index < optEdit.count(); ++Index) {
        optEdit[Index].setCaption(look.options[Index].caption);
        forms::look::configure({{optEdit[Index], Index, look.options[Index].toolTip}}, look.helpNumber);
    }
    forms::look::configure(
        {
            {cmdUpdate, 3, "C&ontinue", look.tipOfUpdate, "next"},
            {cmdCancel, 4, "&Cancel", look.tipOfCancel, "cancel"},
        },
        look.helpNumber);
    layOut(look);
}

void OptionMenu::layOut(const MenuLook& look)
{
    forms::look::Choices options;
    for (int Index = 0; Index < optEdit.count(); ++Index)
        options.add(optEdit[Index], look.options[Index].icon);

    forms::look::Page page(*this);
    page.title(lblHead);
    page.instruction(lblHead2);
    page.add(options.layout());
    page.space(2);
    page.instruction(lblHead3);
    page.wideButtons({&cmdUpdate, &cmdCancel});
    page.space(1);
    page.foot(&lblSelIn, &lblCopyright);
}
