// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/look.h"
#include "reports/frmPrint.h"
#include "shared/conventions.h"

#include <QGridLayout>
#include <QWidget>

namespace {

constexpr int HelpNumber = 2001;

} // namespace

void frmPrint::look()
{
    setTitle(conventions::Title);
    setHelpNumber(HelpNumber);
    lblHead1[0].setCaption("Print Assets");
    lblHead1[1].setCaption("What Assets Would You Like To Print?");
    lblSelIn.setCaption(conventions::HelpHint);
    lblCopyright.setCaption(conventions::Footer);

    forms::look::configure(
        {
            {cmdInPrint[0], 0, "&Indoor ", " Click Here To Print All Of Your Indoor Assets ", "house"},
            {cmdOutPrint[2], 1, "&Outdoor", " Click Here To Print All Of Your Outdoor Assets ", "tree"},
            {cmdAutoPrint[1], 2, "&Mobile", " Click Here To Print All Of Your Mobile Assets ", "car"},
            {cmdAllPrint[3], 3, "&All", " Click Here To Print All Of Your Assets ", "all"},
            {cmdCustom[4], 4, "Create Custom &Printout", " Click Here To Select Certain Assets To Print ", "magnifier"},
            {cmdCover[0], 5, "Personal Information Cover &Sheet",
                " Click Here To Print A Personal Information Cover Sheet ", "document"},
            {cmdFillOutForm[0], 6, "Asset Information &Form", " Click Here To Print A Blank Asset Information Form ",
                "form"},
            {cmdBack[0], 7, "&Cancel", " Click Here To Return To Previous Window ", "cancel"},
        },
        HelpNumber);
    cmdFillOutForm[0].setDefault(true);

    cmdCover[0].Click = [this] { cmdCover_Click(); };
    cmdInPrint[0].Click = [this] { cmdInPrint_Click(); };
    cmdOutPrint[2].Click = [this] { cmdOutPrint_Click(); };
    cmdAutoPrint[1].Click = [this] { cmdAutoPrint_Click(); };
    cmdAllPrint[3].Click = [this] { cmdAllPrint_Click(); };
    cmdCustom[4].Click = [this] { cmdCustom_Click(); };
    cmdFillOutForm[0].Click = [this] { cmdFillOutForm_Click(); };
    cmdBack[0].Click = [this] { cmdBack_Click(); };
    layOut();
}

// The assets by area above, what is printed otherwise below.
void frmPrint::layOut()
{
    forms::look::equalWidths({&cmdInPrint[0], &cmdOutPrint[2], &cmdAutoPrint[1], &cmdAllPrint[3]});
    forms::look::equalWidths({&cmdCustom[4], &cmdCover[0], &cmdFillOutForm[0]});

    auto* areas = new QGridLayout;
    areas->setSpacing(forms::look::grid(1));
    int column = 0;
    for (const forms::CommandButton* area : {&cmdInPrint[0], &cmdOutPrint[2], &cmdAutoPrint[1], &cmdAllPrint[3]}) {
        area->widget()->setMinimumHeight(forms::look::grid(6));
        areas->addWidget(area->widget(), 0, column++);
    }

    forms::look::Page page(*this);
    page.title(lblHead1[0]);
    page.space(1);
    page.instruction(lblHead1[1]);
    page.add(areas);
    page.space(2);
    for (forms::CommandButton* other : {&cmdCustom[4], &cmdCover[0], &cmdFillOutForm[0]})
        page.add(*other);
    page.space(2);
    page.buttons({&cmdBack[0]});
    page.space(1);
    page.foot(&lblSelIn, &lblCopyright);
}
