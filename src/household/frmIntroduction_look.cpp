// SPDX-License-Identifier: GPL-3.0-or-later
#include "household/frmIntroduction.h"

#include "platform/forms/look.h"
#include "shared/conventions.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

using forms::TextRole;

namespace {

template <int Count>
void addLines(QVBoxLayout& column, forms::ControlArray<forms::Label, Count>& lines, TextRole role)
{
    for (int line = 0; line < Count; ++line) {
        lines[line].setRole(role);
        column.addWidget(lines[line].widget(), 0, Qt::AlignHCenter);
    }
    column.addSpacing(forms::look::grid(4));
}

} // namespace

void frmIntroduction::look()
{
    setTitle(conventions::Title);
    setHelpNumber(50001);
    imgHome.setPicture(":/pictures/menu.png", "Kestrill");
    lblHead[0].setCaption("Thank You For Choosing");
    lblHead[1].setCaption("Kestrill");
    lblHead2[0].setCaption("Before we begin, let's take some time");
    lblHead2[1].setCaption("to get some personal information");
    lblHead2[2].setCaption("that will be used later!");
    cmdOK.setCaption("&OK, Let's Begin!");
    cmdOK.setToolTip(" Click Here To Continue When You Are Ready ");
    cmdOK.setIcon(":/pictures/icons/ok.png");
    cmdOK.setTabIndex(0);
    lblSelIn.setCaption(conventions::HelpHint);
    lblCopyright.setCaption(conventions::Footer);

    cmdOK.Click = [this] { cmdOK_Click(); };
    forms::behaviours::pressedColour(cmdOK);
    cmdOK.setDefault(true);
    arrange();
}

void frmIntroduction::arrange()
{
    auto* words = new QVBoxLayout;
    words->setSpacing(forms::look::grid(1) / 2);
    words->addStretch(1);
    addLines(*words, lblHead, TextRole::Title);
    addLines(*words, lblHead2, TextRole::Instruction);
    words->addWidget(cmdOK.widget(), 0, Qt::AlignHCenter);
    words->addStretch(1);

    auto* middle = new QHBoxLayout;
    middle->setSpacing(forms::look::grid(4));
    middle->addWidget(imgHome.widget(), 0, Qt::AlignVCenter);
    middle->addLayout(words, 1);

    forms::look::Page page(*this);
    page.add(middle);
    page.foot(&lblSelIn, &lblCopyright);
}
