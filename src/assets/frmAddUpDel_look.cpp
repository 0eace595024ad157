// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/frmAddUpDel.h"
#include "data/asset_rules.h"
#include "platform/forms/look.h"
#include "shared/conventions.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <QWidget>

namespace {

constexpr int FieldWidth = 32; // characters
constexpr int LeastWidth = 18;
constexpr int OwnHelp = 12001; // of what keeps its number in all areas
constexpr int FirstYear = 1950;
constexpr int LastYear = 2050;

QStringList years()
{
    QStringList years;
    for (int year = LastYear; year >= FirstYear; --year)
        years.append(QString::number(year));
    years.append(QStringLiteral("< %1").arg(FirstYear));
    return years;
}

// Options side by side in their frame, where they exclude each other.
void frameOptions(forms::GroupBox& frame, const QString& caption, forms::ControlArray<forms::OptionButton, 2>& options)
{
    frame.setCaption(caption);
    frame.widget()->setFixedHeight(forms::look::rowsHeight(2));
    auto* line = new QHBoxLayout(frame.widget());
    line->setContentsMargins(forms::look::grid(1), 0, forms::look::grid(1), 0);
    line->setSpacing(forms::look::grid(2));
    for (int index = 0; index < options.count(); ++index) {
        frame.hold(options[index]);
        line->addWidget(options[index].widget());
    }
    line->addStretch();
}

QLayout* assetColumn(frmAddUpDel& screen)
{
    forms::look::FieldRows rows;
    rows.row(screen.lblArea, {&screen.cmbArea});
    rows.row(screen.lblLocation, {&screen.cmbLoc});
    rows.row(screen.lblCategory, {&screen.cmbCat});
    rows.row(screen.lblItem, {&screen.cmbType});
    rows.row(screen.lblYear, {&screen.cmbYear});
    rows.row(screen.lblMake, {&screen.txtMake});
    rows.row(screen.lblModel, {&screen.txtMod});
    rows.row(screen.lblSerial, {&screen.txtSerial});
    return rows.layout();
}

QLayout* purchaseColumn(frmAddUpDel& screen)
{
    frameOptions(screen.frmPurNewUsed, "Purchased", screen.optPurNewUsed);
    frameOptions(screen.frmReceipt, "Receipt On File", screen.optRecOnFile);
    auto* frames = new QHBoxLayout;
    frames->setSpacing(forms::look::grid(2));
    frames->addWidget(screen.frmPurNewUsed.widget(), 1);
    frames->addWidget(screen.frmReceipt.widget(), 1);
    forms::look::FieldRows rows;
    rows.row(screen.lblPurchaseDate, {&screen.txtPur, &screen.picDate});
    rows.row(screen.lblPurchasePrice, {&screen.txtPPrice});
    rows.row(screen.lblReceiptLocation, {&screen.txtLoc});
    rows.row(screen.lblDescription, {&screen.txtDescription});
    rows.layout()->setAlignment(screen.lblDescription.widget(), Qt::AlignRight | Qt::AlignTop);
    // The frames take two rows of the other column, the description three.
    screen.txtDescription.widget()->setFixedHeight(forms::look::rowsHeight(3));
    auto* column = new QVBoxLayout;
    column->setSpacing(forms::look::rowsHeight(2) - 2 * forms::look::rowsHeight(1));
    column->addLayout(frames);
    column->addLayout(rows.layout());
    return column;
}

// All of equal width, in two halves.
QLayout* buttonGrid(frmAddUpDel& screen)
{
    forms::CommandButton* const halves[][2][2] = {
        {{&screen.cmdAdd, &screen.cmdUpdate}, {&screen.cmdPrint, &screen.cmdClear}},
        {{&screen.cmdDelete, &screen.cmdWarranty}, {&screen.cmdCancel, &screen.cmdMain}}};
    auto* both = forms::look::besideOrBelow(forms::look::grid(1));
    for (const auto& half : halves) {
        auto* grid = new QGridLayout;
        grid->setSpacing(forms::look::grid(1));
        for (int column = 0; column < 2; ++column) {
            for (int row = 0; row < 2; ++row)
                grid->addWidget(half[row][column]->widget(), row, column);
            grid->setColumnStretch(column, 1);
        }
        both->addLayout(grid, 1);
    }
    return both;
}

} // namespace

void frmAddUpDel::look()
{
    setTitle(conventions::Title);
    lblHead.setCaption("Add Asset To Inventory");
    lblSelIn.setCaption(conventions::HelpHint);
    lblCopyright.setCaption(conventions::Footer);
    describeFields();
    describeButtons();
    layOut();
    giveFirstValues(); // the options are in their frames by now, and nothing answers yet
    answerFields();
    answerButtons();
}

void frmAddUpDel::describeFields()
{
    forms::look::configure({
        {cmbArea, 1, " The Area Has Already Been Selected "},
        {cmbLoc, 2, " Select A Location From The List "},
        {cmbCat, 3, " Select A Category From The List "},
        {cmbType, 4, " Select An Item From The List Or Enter The Name Of Your Asset "},
        {cmbYear, 5, " Select Or Type The Year Your Asset Was Made "},
        {txtMake, 6, " Enter The Make Of Your Asset "},
        {txtMod, 7, " Enter The Model Of Your Asset "},
        {txtSerial, 8, " Enter The Serial Number Of Your Asset "},
        {optPurNewUsed[0], 9, " Indicates This Asset Is New "},
        {optPurNewUsed[1], 10, " Indicates This Asset Is Used "},
        {txtPur, 11, " Enter The Date This Asset Was Purchased "},
        {picDate, -1, " This Icon Opens A Calendar So A Date Can Be Selected "},
        {txtPPrice, 13, " Enter How Much The Asset Costs...Excluding Taxes "},
        {optRecOnFile[0], 14, " Indicates You Have A Receipt For This Asset "},
        {optRecOnFile[1], 15, " Indicates You Do Not Have A Receipt For This Asset "},
        {txtLoc, 16, " Enter Where The Receipt For This Asset Is Located "},
        {txtDescription, 17, " Any Descriptive Information About The Asset Can Be Entered Here "},
        {chkWar, 18, " Checking This Box Will Open The Warranty Information Window Every Time You Save Your Asset "},
        {chkClear, 19, " Checking This Box Will Clear All Information On The Screen After You Save Your Asset "},
    });
    conventions::setHelpNumbers(OwnHelp, {&chkClear, &picDate});
}

void frmAddUpDel::giveFirstValues()
{
    const struct {
        forms::TextEntry& box;
        Inventory::Column column;
        const char* text;
    } texts[] = {
        {txtMake, Inventory::Make, "Unknown"},
        {txtMod, Inventory::Model, "Unknown"},
        {txtSerial, Inventory::SerialVinId, "Unknown"},
        {txtPur, Inventory::DatePurchased, "dd/mm/yyyy"},
        {txtPPrice, Inventory::Amount, ""},
        {txtLoc, Inventory::ReceiptLocation, "None"},
        {txtDescription, Inventory::Description, ""},
    };
    for (const auto& [box, column, text] : texts) {
        box.setMaxLength(asset_rules::limitOf(column));
        box.setText(text);
    }
    cmbArea.addItems({"Indoor", "Mobile", "Outdoor"});
    cmbArea.setEnabled(false);
    cmbYear.addItems(years());
    optPurNewUsed[0].setCaption("New");
    optPurNewUsed[1].setCaption("Used");
    optPurNewUsed[0].setValue(true);
    optRecOnFile[0].setCaption("Yes");
    optRecOnFile[1].setCaption("No");
    optRecOnFile[1].setValue(true);
    picDate.setPicture(":/pictures/calendar.png", "Calendar");
    chkWar.setCaption("Always Update Warranty Information When Creating A New Asset");
    chkClear.setCaption("Clear Screen For Next Asset");
    chkClear.setValue(1);
}

void frmAddUpDel::describeButtons()
{
    forms::look::configure({
        {cmdWarranty, 20, "&Warranty Information", " Click Here To View Asset Warranty Information ", "shield"},
        {cmdAdd, 21, "&Add Asset", " Click Here To Add The Above Asset To Your Inventory ", "plus"},
        {cmdUpdate, 22, "&Update Asset", " Click Here To Update Changes To The Above Asset ", "pencil"},
        {cmdDelete, 23, "&Delete Asset", " Click Here To Delete The Above Asset ", "trash"},
        {cmdCancel, 24, "&Cancel", " Click Here To Return To Previous Window ", "cancel"},
        {cmdMain, 25, "&Main Menu", " Click Here To Go Back To Main Menu ", "back"},
        {cmdClear, 26, "Clear &Form", " Click Here To Clear This Form ", "clear"},
        {cmdPrint, 27, "&Print Asset", " Click Here To Print The Above Asset Only ", "printer"},
    });
}

void frmAddUpDel::answerFields()
{
    forms::behaviours::noKeys(cmbArea, forms::key::F1);
    forms::behaviours::listOnly(cmbLoc);
    forms::behaviours::listOnly(cmbCat);
    forms::behaviours::noKeys(cmbCat);
    cmbArea.Click = [this] { cmbArea_Click(); };
    cmbLoc.GotFocus = [this] { cmbLoc_GotFocus(); };
    cmbLoc.Click = [this] { cmbLoc_Click(); };
    cmbCat.Click = [this] { cmbCat_Click(); };
    cmbType.DblClick = [this] { cmbType.selectAll(); };
    cmbYear.GotFocus = [this] { cmbYear_GotFocus(); };
    cmbYear.LostFocus = [this] { cmbYear_LostFocus(); };
    for (forms::TextEntry* box :
        std::initializer_list<forms::TextEntry*>{&txtMake, &txtMod, &txtSerial, &txtPur, &txtDescription})
        forms::behaviours::selectOnFocus(*box);
    for (forms::TextBox* box : {&txtMake, &txtMod, &txtSerial})
        box->LostFocus = [box] { fill_If_Empty(*box, "Unknown"); };
    txtPur.LostFocus = [this] { fill_If_Empty(txtPur, "mm/dd/yyyy"); };
    txtPur.KeyPress = [this](int& KeyAscii) { txtPur_KeyPress(KeyAscii); };
    txtPur.MouseDown = [this] { open_Calendar(); };
    picDate.Click = [this] { open_Calendar(); };
    for (int Index = 0; Index < optRecOnFile.count(); ++Index)
        optRecOnFile[Index].GotFocus = [this, Index] { optRecOnFile_GotFocus(Index); };
    txtLoc.GotFocus = [this] { txtLoc_GotFocus(); };
    txtLoc.KeyPress = [this](int&) { txtLoc_KeyPress(); };
    txtLoc.LostFocus = [this] { fill_If_Empty(txtLoc, "Unknown"); };
    chkWar.Click = [this] { chkWar_Click(); };
    chkClear.Click = [this] { chkClear_Click(); };
}

void frmAddUpDel::answerButtons()
{
    cmdWarranty.Click = [this] { cmdWarranty_Click(); };
    cmdAdd.Click = [this] { save_It(); };
    cmdUpdate.Click = [this] { cmdUpdate_Click(); };
    cmdDelete.Click = [this] { cmdDelete_Click(); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };
    cmdMain.Click = [this] { cmdMain_Click(); };
    cmdClear.Click = [this] { cmdClear_Click(); };
    cmdPrint.Click = [this] { cmdPrint_Click(); };
}

void frmAddUpDel::layOut()
{
    for (forms::ComboBox* box : {&cmbArea, &cmbLoc, &cmbCat, &cmbType, &cmbYear})
        box->setWidthInCharacters(FieldWidth, LeastWidth);
    for (forms::TextBox* box : {&txtMake, &txtMod, &txtSerial, &txtPPrice, &txtLoc})
        box->setWidthInCharacters(FieldWidth, LeastWidth);
    txtPur.setWidthInCharacters(FieldWidth / 2, LeastWidth * 2 / 3);
    txtDescription.setSizeInCharacters(FieldWidth, 3, LeastWidth);

    auto* fields = forms::look::besideOrBelow(forms::look::grid(4));
    fields->addLayout(assetColumn(*this));
    fields->addLayout(purchaseColumn(*this), 1);
    auto* boxes = forms::look::besideOrBelow(forms::look::grid(4));
    boxes->addWidget(chkWar.widget());
    boxes->addWidget(chkClear.widget());
    boxes->addStretch();

    cmdDelete.setDestructive(true);
    forms::look::Page page(*this);
    page.title(lblHead);
    page.add(fields);
    page.space(1);
    page.add(boxes);
    page.space(1);
    page.add(buttonGrid(*this));
    page.foot(&lblSelIn, &lblCopyright);
}
