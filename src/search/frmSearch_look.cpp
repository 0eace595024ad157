// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/look.h"
#include "search/frmSearch.h"
#include "shared/conventions.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QProgressBar>

#include <algorithm>

namespace {

constexpr int HelpNumber = 4001;
constexpr int FieldWidth = 48; // characters
constexpr int LeastWidth = 24;

// The bar and the line of text share one spot, of which nothing moves when they change places.
QLayout* oneSpot(forms::Label& words, forms::ProgressBar& bar)
{
    auto* spot = new QGridLayout;
    bar.widget()->setFixedWidth(forms::look::fieldWidth(LeastWidth));
    spot->addWidget(words.widget(), 0, 0, Qt::AlignCenter);
    spot->addWidget(bar.widget(), 0, 0, Qt::AlignCenter);
    spot->setRowMinimumHeight(0, std::max(words.widget()->sizeHint().height(), bar.widget()->sizeHint().height()));
    return spot;
}

} // namespace

void frmSearch::look()
{
    setTitle(conventions::Title);
    setHelpNumber(HelpNumber);
    const char* const heads[] = {
        "Search For Assets", "Narrow Your Search", "Search By Word", "Click Search To Find Assets!", "And / Or"};
    for (int index = 0; index < lblHead.count(); ++index)
        lblHead[index].setCaption(heads[index]);
    lblSelIn.setCaption(conventions::HelpHint);
    lblCopyright.setCaption(conventions::Footer);

    forms::look::configure(
        {
            {txtKey, 0, " Type In A Word To Search...Then Select The Enter Key To Find Asset(s) ", 254},
            {cmbArea, 1, " Select An Area To Search...Then Select The Enter Key To Find Asset(s) "},
            {cmbLocation, 2, " Select A Location To Search...Then Select The Enter Key To Find Asset(s) "},
            {cmbCat, 3, " Select A Category To Search...Then Select The Enter Key To Find Asset(s) "},
            {cmbType, 4, " Select An Item To Search...Then Select The Enter Key To Find Asset(s) "},
        },
        HelpNumber);
    forms::look::configure(
        {
            {cmdBack, 5, "&Cancel", " Click Here To Return To The Previous Window ", "cancel"},
            {cmdClearForm, 6, "&Reset", " Click Here To Clear This Form For A New Search ", "clear"},
            {cmdContinue, 7, "&Search", " Click Here To Search For Assets Containing The Information Above ",
                "magnifier"},
        },
        HelpNumber);
    cmdContinue.setDefault(true);
    cmbArea.addItems({"Any", "Indoor", "Mobile", "Outdoor"});
    for (forms::ComboBox* list : {&cmbArea, &cmbLocation, &cmbCat, &cmbType})
        list->setText("Any");
    pbSearch.setVisible(false);
    pbSearch.setSpokenName("Assets Looked Through");
    answer();
    layOut();
}

void frmSearch::answer()
{
    forms::behaviours::selectOnFocus(txtKey);
    for (forms::ComboBox* list : {&cmbLocation, &cmbCat, &cmbType})
        forms::behaviours::listOnly(*list);
    cmbLocation.GotFocus = [this] { cmbLocation_GotFocus(); };
    cmbCat.GotFocus = [this] { cmbCat_GotFocus(); };
    cmbType.GotFocus = [this] { cmbType_GotFocus(); };
    cmbType.LostFocus = [this] { cmbType_LostFocus(); };
    cmbArea.Change = [this] { fill_Location_List(); };
    cmbArea.Click = [this] { cmbArea_Click(); };
    cmbArea.DropDown = [this] { cmbArea.setLocked(false); };
    cmbLocation.Change = [this] { fill_Category_List(); };
    cmbLocation.Click = [this] { fill_Category_List(); };
    cmbCat.Change = [this] { fill_Item_List(); };
    cmbCat.Click = [this] { fill_Item_List(); };
    cmdContinue.Click = [this] { cmdContinue_Click(); };
    cmdClearForm.Click = [this] { cmdClearForm_Click(); };
    cmdBack.Click = [this] { cmdBack_Click(); };
}

void frmSearch::layOut()
{
    txtKey.setWidthInCharacters(FieldWidth, LeastWidth);
    for (forms::ComboBox* list : {&cmbArea, &cmbLocation, &cmbCat, &cmbType})
        list->setWidthInCharacters(FieldWidth, LeastWidth);
    lblHead[2].nameFor(txtKey);
    lblHead[3].setRole(forms::TextRole::Instruction);
    lblHead[4].setRole(forms::TextRole::Hint);

    forms::look::FieldRows fields;
    fields.heading(lblHead[2]);
    fields.below(txtKey);
    fields.below(lblHead[4]);
    fields.heading(lblHead[1]);
    fields.row(lblArea, {&cmbArea});
    fields.row(lblLocation, {&cmbLocation});
    fields.row(lblCat, {&cmbCat});
    fields.row(lblType, {&cmbType});

    forms::look::Page page(*this);
    page.title(lblHead[0]);
    page.add(fields.layout());
    page.space(1);
    page.add(oneSpot(lblHead[3], pbSearch));
    page.space(1);
    page.buttons({&cmdContinue, &cmdClearForm, &cmdBack});
    page.space(1);
    page.foot(&lblSelIn, &lblCopyright);
}
