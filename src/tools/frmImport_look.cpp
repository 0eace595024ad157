// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/asset_rules.h"
#include "platform/forms/look.h"
#include "shared/areas.h"
#include "shared/conventions.h"
#include "tools/frmImport.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QWidget>

namespace {

constexpr int FileLength = 62; // characters
constexpr int RowsInSight = 7;
constexpr int LeastRows = 5; // on a small desktop

// Words above each of some boxes that stand side by side.
QGridLayout* below(std::initializer_list<std::pair<forms::Label*, forms::Control*>> boxes)
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(forms::look::grid(1));
    grid->setVerticalSpacing(forms::look::grid(1) / 4);
    for (const auto& [label, box] : boxes) {
        const int column = grid->columnCount();
        grid->addWidget(label->widget(), 0, column);
        grid->addWidget(box->widget(), 1, column);
        label->nameFor(*box);
    }
    return grid;
}

} // namespace

void frmImport::look()
{
    setTitle(conventions::Title);
    lblHead.setCaption("Import Assets");
    lblColumns.setCaption("&Headings of the list, and where their columns go");
    lblColumns.nameFor(lstColumns);
    lblTarget.setCaption("&Goes To");
    lblDates.setCaption("&Order Of Dates");
    lblDecimal.setCaption("C&ents");
    lblNone.setCaption("What an asset gets that has nothing there:");
    lblArea.setCaption("&Area");
    lblLoc.setCaption("&Location");
    lblCat.setCaption("Ca&tegory");
    lblPur.setCaption("&Purchase Date");
    lblSelIn.setCaption(conventions::HelpHint);
    lblCopyright.setCaption(conventions::Footer);
    lstColumns.setColumns({"Heading", "Goes To", "First Text"},
        {"Where the thing stands now", "End Of Description", "Camcorder with its case and two"});
    lstColumns.setRows(RowsInSight, LeastRows);
    cmbTarget.addItems(importing::targetNames());
    cmbDates.addItem("Found Out");
    for (const auto order :
        {importing::DateOrder::MonthFirst, importing::DateOrder::DayFirst, importing::DateOrder::YearFirst})
        cmbDates.addItem(importing::nameOf(order));
    cmbDecimal.addItems({"Found Out", "Point (1,234.50)", "Comma (1.234,50)"});
    cmbArea.addItem("(nothing)");
    for (const areas::Area& area : areas::all())
        cmbArea.addItem(area.name);
    cmbArea.setListIndex(0);
    forms::look::configure({
        {lstColumns, 1, " Choose The Column Whose Place Is To Be Another "},
        {cmbTarget, 2, " Choose The Field That The Column Goes To "},
        {cmbDates, 3, " Choose How The Dates Of The List Are Written "},
        {cmbDecimal, 4, " Choose The Sign That Stands Before The Cents "},
        {cmbArea, 5, " Choose The Area Of Assets Whose Row Has None "},
        {txtLoc, 6, " Enter The Location Of Assets Whose Row Has None ", asset_rules::limitOf(Inventory::Location)},
        {txtCat, 7, " Enter The Category Of Assets Whose Row Has None ", asset_rules::limitOf(Inventory::Category)},
        {txtPur, 8, " Enter The Purchase Date Of Assets Whose Row Has None ",
            asset_rules::limitOf(Inventory::DatePurchased)},
    });
    forms::look::configure({
        {cmdChoose, 0, "Choose &File...", " Click Here To Choose The List To Import ", "document"},
        {cmdNext, 9, "&Next", " Click Here To See What Will Be Imported ", "next"},
        {cmdClose, 10, "&Close", " Click Here To Leave Everything As It Is ", "exit"},
    });
    answer();
    layOut();
}

void frmImport::answer()
{
    cmdChoose.Click = [this] { cmdChoose_Click(); };
    lstColumns.Click = [this] { lstColumns_Click(); };
    cmbTarget.GotFocus = [this] { cmbTarget_GotFocus(); };
    cmbTarget.Click = [this] { cmbTarget_Click(); };
    cmdNext.Click = [this] { cmdNext_Click(); };
    cmdClose.Click = [this] { close(); };
    tmStart.Timer = [this] { tmStart_Timer(); };
}

void frmImport::layOut()
{
    lblFile.wrapAt(FileLength);
    lblFile.widget()->setMinimumHeight(forms::look::grid(4)); // two lines
    cmbTarget.setWidthInCharacters(18);
    cmbDates.setWidthInCharacters(15);
    cmbDecimal.setWidthInCharacters(16);
    cmbArea.setWidthInCharacters(10);
    for (forms::TextBox* box : {&txtLoc, &txtCat})
        box->setWidthInCharacters(20);
    txtPur.setWidthInCharacters(11);

    auto* file = new QHBoxLayout;
    file->addWidget(lblFile.widget(), 1);
    file->addWidget(cmdChoose.widget());
    auto* columns = new QVBoxLayout;
    columns->setSpacing(forms::look::grid(1) / 2);
    columns->addWidget(lblColumns.widget());
    columns->addWidget(lstColumns.widget(), 0, Qt::AlignHCenter);
    columns->addLayout(below({{&lblTarget, &cmbTarget}, {&lblDates, &cmbDates}, {&lblDecimal, &cmbDecimal}}));
    lblNone.setRole(forms::TextRole::Instruction);
    columns->addWidget(lblNone.widget());
    columns->addLayout(below({{&lblArea, &cmbArea}, {&lblLoc, &txtLoc}, {&lblCat, &txtCat}, {&lblPur, &txtPur}}));

    forms::look::Page page(*this);
    page.title(lblHead);
    page.add(file);
    page.add(columns);
    page.buttons({&cmdNext, &cmdClose});
    page.foot(&lblSelIn, &lblCopyright);
}
