// SPDX-License-Identifier: GPL-3.0-or-later
#include "lists/editor_look.h"

#include "shared/conventions.h"

#include <QGridLayout>
#include <QVBoxLayout>

namespace editing {

namespace {

constexpr int ScreenWidth = 50; // characters, as wide as the menu

forms::look::Page pageOf(const EditorParts& parts)
{
    forms::look::Page page(parts.editor);
    page.column()->addStrut(forms::look::fieldWidth(ScreenWidth));
    page.title(parts.heading);
    return page;
}

void addFoot(forms::look::Page& page, const EditorParts& parts)
{
    page.buttons({&parts.cmdUpdate, &parts.cmdCancel});
    page.space(1);
    page.foot(&parts.lblSelIn, &parts.lblCopyright);
}

} // namespace

void lookOf(const EditorParts& parts, const forms::look::ButtonLook& update)
{
    parts.editor.setTitle(conventions::Title);
    parts.lblSelIn.setCaption(conventions::HelpHint);
    parts.lblCopyright.setCaption(conventions::Footer);
    forms::look::configure({
        update,
        {parts.cmdCancel, update.tabIndex + 1, "&Cancel", " Click Here To Return To Previous Window ", "cancel"},
    });
}

void layOut(const EditorParts& parts, const forms::look::FieldRows& rows)
{
    forms::look::Page page = pageOf(parts);
    page.add(rows.layout());
    addFoot(page, parts);
}

void layOut(
    const EditorParts& parts, forms::Label& first, forms::Label& choice, forms::Control& field, forms::Label& second)
{
    forms::look::FieldRows rows;
    rows.row(choice, {&field});

    forms::look::Page page = pageOf(parts);
    page.space(1);
    page.instruction(first);
    page.add(rows.layout());
    page.space(1);
    page.instruction(second);
    addFoot(page, parts);
}

} // namespace editing
