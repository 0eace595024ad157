// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/look.h"
#include "shared/conventions.h"
#include "tools/frmImported.h"

#include <QVBoxLayout>

namespace {

constexpr int LineLength = 64; // characters

} // namespace

void frmImported::look()
{
    setTitle(conventions::Title);
    lblHead.setCaption("The Assets Are Imported");
    lblSelIn.setCaption(conventions::HelpHint);
    lblCopyright.setCaption(conventions::Footer);
    forms::look::configure({{cmdClose, 0, "&Close", " Click Here To Close This Window ", "ok"}});
    cmdClose.setDefault(true);
    cmdClose.Click = [this] { close(); };

    auto* lines = new QVBoxLayout;
    lines->setSpacing(forms::look::grid(2));
    for (int line = 0; line < lblTell.count(); ++line) {
        lblTell[line].setRole(line == 0 ? forms::TextRole::Instruction : forms::TextRole::Body);
        lblTell[line].wrapAt(LineLength);
        lines->addWidget(lblTell[line].widget());
    }

    forms::look::Page page(*this);
    page.title(lblHead);
    page.add(lines);
    page.space(1);
    page.buttons({&cmdClose});
    page.foot(&lblSelIn, &lblCopyright);
}
