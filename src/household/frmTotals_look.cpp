// SPDX-License-Identifier: GPL-3.0-or-later
#include "household/frmTotals.h"
#include "platform/forms/look.h"
#include "shared/conventions.h"

#include <QFrame>
#include <QGridLayout>

namespace {

constexpr int HelpNumber = 3001;

// What is counted on the left, its worth on the right.
void addLine(QGridLayout& lines, forms::Label& what, forms::Label& worth, forms::TextRole role)
{
    const int row = lines.rowCount();
    for (forms::Label* label : {&what, &worth})
        label->setRole(role);
    worth.alignAmounts();
    lines.addWidget(what.widget(), row, 0, Qt::AlignRight | Qt::AlignVCenter);
    lines.addWidget(worth.widget(), row, 1, Qt::AlignRight | Qt::AlignVCenter);
    what.nameFor(worth);
}

} // namespace

void frmTotals::look()
{
    setTitle(conventions::Title);
    setHelpNumber(HelpNumber);
    lblHead.setCaption("Total Asset Value");
    lblHead2[0].setCaption("Total Assets");
    lblHead2[1].setCaption("Total Asset Value");
    lblSelIn.setCaption(conventions::HelpHint);
    lblCopyright.setCaption(conventions::Footer);
    forms::look::configure({{cmdOK, 0, "&OK", " Click Here To Return To Main Menu ", "ok"}}, HelpNumber);
    cmdOK.setDefault(true);
    cmdOK.Click = [this] { cmdOK_Click(); };
    layOut();
}

void frmTotals::layOut()
{
    auto* lines = new QGridLayout;
    lines->setHorizontalSpacing(forms::look::grid(3));
    lines->setVerticalSpacing(forms::look::grid(2));
    addLine(*lines, lblInNumAssets, lblIndoorTots, forms::TextRole::Instruction);
    addLine(*lines, lblOutNumAssets, lblOutdoorTots, forms::TextRole::Instruction);
    addLine(*lines, lblMobNumAssets, lblMobileTots, forms::TextRole::Instruction);
    auto* sumLine = new QFrame(canvas());
    sumLine->setFrameShape(QFrame::HLine);
    lines->addWidget(sumLine, lines->rowCount(), 0, 1, 2);
    addLine(*lines, lblHead2[0], lblTotNumAssets, forms::TextRole::Heading);
    addLine(*lines, lblHead2[1], lblGrandTot, forms::TextRole::Heading);

    auto* middle = new QHBoxLayout;
    middle->addStretch();
    middle->addLayout(lines);
    middle->addStretch();

    forms::look::Page page(*this);
    page.title(lblHead);
    page.add(middle);
    page.space(3);
    page.buttons({&cmdOK});
    page.space(1);
    page.foot(&lblSelIn, &lblCopyright);
}
