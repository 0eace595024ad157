// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/outcome_look.h"

#include "shared/conventions.h"

#include <QVBoxLayout>

namespace outcome {

namespace {

constexpr int LineLength = 64; // characters

} // namespace

void lookOf(const Parts& parts)
{
    parts.outcome.setTitle(conventions::Title);
    parts.lblSelIn.setCaption(conventions::HelpHint);
    parts.lblCopyright.setCaption(conventions::Footer);
    forms::look::configure({{parts.cmdClose, 0, "&Close", " Click Here To Close This Window ", "ok"}});
    parts.cmdClose.setDefault(true);
    parts.cmdClose.Click = [&outcome = parts.outcome] { outcome.close(); };

    auto* paragraphs = new QVBoxLayout;
    paragraphs->setSpacing(forms::look::grid(2));
    for (forms::Label* paragraph : parts.paragraphs) {
        paragraph->setRole(
            paragraph == parts.paragraphs.front() ? forms::TextRole::Instruction : forms::TextRole::Body);
        paragraph->wrapAt(LineLength);
        paragraphs->addWidget(paragraph->widget());
    }

    forms::look::Page page(parts.outcome);
    page.title(parts.heading);
    page.add(paragraphs);
    page.space(1);
    page.buttons({&parts.cmdClose});
    page.foot(&parts.lblSelIn, &parts.lblCopyright);
}

} // namespace outcome
