// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/frmExit.h"
#include "platform/forms/look.h"
#include "shared/conventions.h"

namespace {

constexpr int LineLength = 60; // characters

} // namespace

void frmExit::look()
{
    setTitle(conventions::Title);
    imgHome.setPicture(":/pictures/goodbye.png", "Kestrill");
    lblHead.setCaption("Thank You For Choosing Kestrill");
    lblHead1.setCaption("Have A Wonderful Day!");
    lblCopyright.setCaption(conventions::Footer);
    tmExit.Timer = [this] { tmExit_Timer(); };

    forms::look::Page page(*this, forms::look::PageSize::Own);
    page.title(lblHead);
    page.space(1);
    page.add(imgHome);
    page.space(1);
    lblHead1.setRole(forms::TextRole::Heading);
    page.add(lblHead1);
    lblTrouble.wrapAt(LineLength);
    page.add(lblTrouble);
    page.foot(nullptr, &lblCopyright);
}
