// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/look.h"
#include "shared/conventions.h"
#include "tools/frmImportPlan.h"

#include <QHBoxLayout>
#include <QWidget>

namespace {

constexpr int LineLength = 74; // characters
constexpr int RowsInSight = 7;
constexpr int LeastRows = 4; // on a small desktop
constexpr int ShowWidth = 34; // characters

} // namespace

void frmImportPlan::look()
{
    setTitle(conventions::Title);
    lblHead.setCaption("What Will Be Imported");
    lblShow.setCaption("&Show");
    lblShow.nameFor(cmbShow);
    lblSelIn.setCaption(conventions::HelpHint);
    lblCopyright.setCaption(conventions::Footer);
    lstRows.setColumns({"Where", "What"},
        {"Outdoor Category", "The Purchase Price Of The Asset Must Be Entered Before Saving! 1234567"});
    lstRows.setRows(RowsInSight, LeastRows);
    lstRows.setSpokenName("What Will Be Imported");
    forms::look::configure({
        {cmbShow, 0, " Choose What The List Shows "},
        {lstRows, 1, " Go Through The Lines: Each Stands Whole Below The List "},
        {chkSkip, 2, " Click Here To Import The Other Rows, And To Have These In A File To Mend "},
        {chkKnown, 3, " Click Here To Have These Assets Twice "},
        {chkCut, 4, " Click Here To Take As Much Of A Text As Its Field Holds "},
    });
    chkSkip.setCaption("&Leave out rows that can't go in, and write them to a file:");
    chkKnown.setCaption("&Take assets once more that are there already");
    chkCut.setCaption("C&ut texts that are too long");
    forms::look::configure({
        {cmdImport, 5, "&Import", " Click Here To Import The Assets ", "save"},
        {cmdBack, 6, "&Back", " Click Here To Return To The Previous Window ", "back"},
        {cmdClose, 7, "&Close", " Click Here To Leave Everything As It Is ", "exit"},
    });
    answer();
    layOut();
}

void frmImportPlan::answer()
{
    cmbShow.Click = [this] { cmbShow_Click(); };
    lstRows.Click = [this] { lstRows_Click(); };
    chkSkip.Click = [this] { chkSkip_Click(); };
    chkKnown.Click = [this] { plan_Anew(); };
    chkCut.Click = [this] { plan_Anew(); };
    cmdImport.Click = [this] { cmdImport_Click(); };
    cmdBack.Click = [this] { cmdBack_Click(); };
    cmdClose.Click = [this] { close(); };
}

void frmImportPlan::layOut()
{
    lblTell.wrapAt(LineLength);
    lblWhole.wrapAt(LineLength);
    lblWhole.widget()->setMinimumHeight(forms::look::grid(4)); // two lines
    lblWrongFile.wrapAt(LineLength);
    lblWrongFile.setRole(forms::TextRole::Hint);
    cmbShow.setWidthInCharacters(ShowWidth);

    lblAll.setRole(forms::TextRole::Instruction);
    auto* areas = new QHBoxLayout;
    areas->setSpacing(forms::look::grid(3));
    for (int area = 0; area < lblArea.count(); ++area)
        areas->addWidget(lblArea[area].widget());
    areas->addStretch();
    auto* column = new QVBoxLayout;
    column->setSpacing(forms::look::grid(1) / 2);
    column->addWidget(lblTell.widget());
    column->addWidget(lblAll.widget());
    column->addLayout(areas);
    column->addLayout(forms::look::sideBySide({&lblShow, &cmbShow}));
    for (forms::Control* control : std::initializer_list<forms::Control*>{&lstRows, &lblWhole, &chkSkip, &lblWrongFile})
        column->addWidget(control->widget());
    column->addLayout(forms::look::sideBySide({&chkKnown, &chkCut}));

    forms::look::Page page(*this);
    page.title(lblHead);
    page.add(column);
    page.buttons({&cmdImport, &cmdBack, &cmdClose});
    page.foot(&lblSelIn, &lblCopyright);
}
