// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/look.h"
#include "shared/conventions.h"
#include "tools/frmImported.h"

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
    forms::look::mainAction(cmdClose);
    cmdClose.setDefault(true);
    cmdClose.Click = [this] { close(); };

    forms::look::Page page(*this);
    page.title(lblHead);
    for (int line = 0; line < lblTell.count(); ++line) {
        lblTell[line].setRole(line == 0 ? forms::TextRole::Instruction : forms::TextRole::Body);
        lblTell[line].wrapAt(LineLength);
        page.add(lblTell[line]);
        page.space(1);
    }
    page.buttons({&cmdClose});
    page.foot(&lblSelIn, &lblCopyright);
}
