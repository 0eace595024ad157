// SPDX-License-Identifier: GPL-3.0-or-later
#include "shared/option_menu.h"

#include "platform/forms/look.h"
#include "shared/conventions.h"

#include <QVBoxLayout>

namespace {

constexpr int Width = 50; // characters

} // namespace

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
    layOut();
}

void OptionMenu::layOut()
{
    auto* options = new QVBoxLayout;
    options->setContentsMargins(forms::look::grid(4), 0, 0, 0);
    options->setSpacing(forms::look::grid(1));
    for (int Index = 0; Index < optEdit.count(); ++Index)
        options->addWidget(optEdit[Index].widget(), 0, Qt::AlignLeft);

    forms::look::Page page(*this);
    page.column()->addStrut(forms::look::fieldWidth(Width));
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
