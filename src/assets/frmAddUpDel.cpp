// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/frmAddUpDel.h"

#include "assets/find_asset.h"
#include "assets/settings.h"
#include "data/name_markers.h"
#include "lists/editing.h"
#include "lists/frmAddField.h"
#include "lists/frmEditCmbBoxes.h"
#include "lists/name_list.h"
#include "platform/values/date.h"
#include "platform/values/text.h"
#include "search/frmSearchResults.h"
#include "shared/conventions.h"
#include "shared/frmCalendar.h"
#include "shared/ways.h"

using forms::screen;

namespace {

const QString NoDate = QStringLiteral("mm/dd/yyyy");
const QString UpdateHeading = QStringLiteral("Update/Delete Asset From Inventory");
constexpr int UpdateHelp = 15001;
constexpr int DateForAsset = 3; // DateTarget of the calendar

QString thisYear()
{
    return QString::number(values::Today().year());
}

// Keeps the last real name; a marker is none.
void keepName(QString& saved, const QString& name, const QString& marker)
{
    if (name != marker)
        saved = name;
}

} // namespace

frmAddUpDel::frmAddUpDel()
    : AssetScreen("frmAddUpDel", 10)
{
    look();
}

void frmAddUpDel::Form_Activate()
{
    CurrentScreen = Number;
}

void frmAddUpDel::Form_Unload(bool& cancel)
{
    cancel = true;
    cmdCancel_Click();
}

// ---- fields

void frmAddUpDel::cmbArea_Click()
{
    cmbLoc.clear();
    cmbCat.clear();
    fill_Lists(areas::ofName(cmbArea.text()));
}

void frmAddUpDel::cmbLoc_GotFocus()
{
    screen<frmAddField>().SavedLocation = cmbLoc.text();
}

void frmAddUpDel::cmbLoc_Click()
{
    keepName(screen<frmAddField>().SavedLocation, cmbLoc.text(), names::LocationMarker);
    cmbLoc.setLocked(false);
    if (cmbLoc.text() == names::LocationMarker)
        open_List_Menu(editing::locations());
}

void frmAddUpDel::cmbCat_Click()
{
    keepName(screen<frmAddField>().SavedCategory, cmbCat.text(), names::CategoryMarker);
    if (cmbCat.text() == names::CategoryMarker)
        open_List_Menu(editing::categories());
    // The items of an asset that is already there stay as they are.
    if (!values::equalUpper(lblHead.caption(), UpdateHeading))
        fill_Item_List(cmbType, areas::ofName(cmbArea.text()).nameTable(), cmbCat.text());
}

// As much is selected as the make is long, not the year: on purpose.
void frmAddUpDel::cmbYear_GotFocus()
{
    cmbYear.setSelectionStart(0);
    cmbYear.setSelectionLength(static_cast<int>(txtMake.text().size()));
}

void frmAddUpDel::cmbYear_LostFocus()
{
    fill_If_Empty(cmbYear, thisYear());
}

void frmAddUpDel::fill_If_Empty(forms::TextEntry& box, const QString& text)
{
    if (box.text().isEmpty())
        box.setText(text);
}

void frmAddUpDel::txtPur_KeyPress(int& KeyAscii)
{
    KeyAscii = forms::key::Refused;
    open_Calendar();
}

void frmAddUpDel::optRecOnFile_GotFocus(int Index)
{
    NoReceipt = Index == 1;
    txtLoc.setLocked(NoReceipt);
    if (NoReceipt)
        txtLoc.setText("None");
    else
        txtLoc.setFocus();
}

void frmAddUpDel::txtLoc_GotFocus()
{
    txtLoc.setText({});
    optRecOnFile[0].setValue(true);
}

void frmAddUpDel::txtLoc_KeyPress()
{
    txtLoc.setLocked(false);
    optRecOnFile[0].setValue(true);
}

void frmAddUpDel::chkWar_Click()
{
    settings::remember(General::WarrantyCheck, chkWar.value());
}

void frmAddUpDel::chkClear_Click()
{
    settings::remember(General::ClearCheck, chkClear.value());
}

// ---- buttons

void frmAddUpDel::cmdCancel_Click()
{
    if (!leaving_Is_Confirmed())
        return;
    clear_ComboBoxes();
    if (ways::frmMain().FromResults)
        return_To_Results();
    else
        ways::frmAuto().show();
    hide();
}

// The search runs again: the asset may have changed.
void frmAddUpDel::return_To_Results()
{
    auto& results = screen<frmSearchResults>();
    {
        const forms::WaitPointer pointer;
        setEnabled(false);
        results.FromSearchScreen = false;
        results.load_From_Search_Screen();
    }
    setEnabled(true);
    results.show();
}

// The lists stay as they are, unlike at a cancel: on purpose.
void frmAddUpDel::cmdMain_Click()
{
    if (!leaving_Is_Confirmed())
        return;
    ways::frmMain().show();
    hide();
}

void frmAddUpDel::cmdClear_Click()
{
    if (!leaving_Is_Confirmed())
        return;
    screen<frmAddField>().SavedLocation.clear();
    screen<frmAddField>().SavedCategory.clear();
    cmbLoc.setText({});
    cmbCat.setText({});
    cmbType.clear();
    cmbYear.setText(thisYear());
    empty_Details();
    optRecOnFile[0].setValue(false);
    optRecOnFile[1].setValue(false);
    txtLoc.setText("None");
    txtDescription.setText("None");
    cmbLoc.setFocus();
}

bool frmAddUpDel::leaving_Is_Confirmed()
{
    return conventions::confirmed(
        "Any Unsaved Changes Will Be Lost...Continue?", forms::box::Question + forms::box::YesNo);
}

// ---- the two modes

void frmAddUpDel::default_To_Update()
{
    cmdUpdate.setDefault(true); // and cmdAdd no longer
}

void frmAddUpDel::check_Form_Type()
{
    show();
    if (ways::frmMain().FromResults)
        prepare_For_Updating();
    else
        prepare_For_Adding();
}

void frmAddUpDel::prepare_For_Adding()
{
    cmbArea.setEnabled(false);
    cmbArea.setToolTip(" The Area Has Already Been Selected ");
    cmdAdd.setDefault(true);
    load_Add_Mode();
    screen<frmAddField>().SavedLocation.clear();
    screen<frmAddField>().SavedCategory.clear();
    cmbLoc.setFocus();
    cmdPrint.setEnabled(false);
    chkWar.setEnabled(true);
    chkClear.setEnabled(true);
}

void frmAddUpDel::prepare_For_Updating()
{
    cmbArea.setEnabled(true);
    cmbArea.setLocked(false);
    cmbArea.setToolTip(" Select An Area From The List ");
    load_Update_Mode();
    cmdUpdate.setDefault(true);
    cmbArea.setFocus();
    cmdPrint.setEnabled(true);
    HelpBase = UpdateHelp;
    load_Help_IDs();
    chkWar.setEnabled(false);
    chkClear.setEnabled(false);
    screen<frmAddField>().SavedLocation = cmbLoc.text();
    screen<frmAddField>().SavedCategory = cmbCat.text();
}

void frmAddUpDel::load_Add_Mode()
{
    const bool fromResults = ways::frmMain().FromResults;
    cmdAdd.setDefault(true);
    if (!fromResults)
        reset_Fields();
    cmdClear.setEnabled(!fromResults);
    load_War_Option();
    cmdAdd.setEnabled(true);
    for (forms::CommandButton* button : {&cmdUpdate, &cmdDelete, &cmdWarranty, &cmdPrint})
        button->setEnabled(false);
    load_Area(areas::ofMenuTitle(ways::frmAuto().lblHead1[0].caption()));
    cmbYear.setText(thisYear());
    txtLoc.setText("None");
    txtLoc.setLocked(true);
    txtPur.setText(NoDate);
    if (fromResults)
        lblHead.setCaption(UpdateHeading);
}

void frmAddUpDel::load_Area(const areas::Area& area)
{
    HelpBase = area.addHelp;
    load_Help_IDs();
    lblHead.setCaption(area.addHeading);
    fill_Lists(area);
    cmbArea.setText(area.name);
}

void frmAddUpDel::load_Update_Mode()
{
    WarrantyDue = false;
    load_War_Option();
    cmdUpdate.setDefault(true);
    cmdWarranty.setEnabled(true);
    cmdClear.setEnabled(false);
    cmdPrint.setEnabled(true);
    if (!find_Selected_Asset())
        return;
    if (const areas::Area* area = areas::findUpper(Data1.rsInventory.Fields(Inventory::Area).text())) {
        cmbArea.setText(area->name);
        ways::frmAuto().lblHead1[0].setCaption(area->menuTitle);
    }
    load_Add_Mode();
    load_Asset();
    cmdAdd.setEnabled(false);
    for (forms::CommandButton* button : {&cmdDelete, &cmdUpdate, &cmdWarranty})
        button->setEnabled(true);
}

bool frmAddUpDel::find_Selected_Asset()
{
    return findAsset(screen<frmSearchResults>().SelectedAsset.toLongLong());
}

void frmAddUpDel::load_Asset()
{
    const auto stored = [](int column) { return Data1.rsInventory.Fields(column); };
    for (const auto& [field, column] : plain_Fields())
        field.setText(stored(column).text());
    txtPPrice.setText(stored(Inventory::Amount).currency().toText());
    SavedPrice = txtPPrice.text();
    optRecOnFile[stored(Inventory::Receipt) == "Yes" ? 0 : 1].setValue(true);
    txtLoc.setText(stored(Inventory::ReceiptLocation).text());
    txtDescription.setText(stored(Inventory::Description).text());
    optPurNewUsed[stored(Inventory::Purchased) == "New" ? 0 : 1].setValue(true);
}

std::array<frmAddUpDel::PlainField, 8> frmAddUpDel::plain_Fields()
{
    return {{{cmbLoc, Inventory::Location}, {cmbCat, Inventory::Category}, {cmbType, Inventory::Type},
        {cmbYear, Inventory::Year}, {txtMake, Inventory::Make}, {txtMod, Inventory::Model},
        {txtSerial, Inventory::SerialVinId}, {txtPur, Inventory::DatePurchased}}};
}

void frmAddUpDel::load_War_Option()
{
    chkWar.setValue(settings::remembered(General::WarrantyCheck));
}

void frmAddUpDel::load_Help_IDs()
{
    conventions::setHelpNumbers(HelpBase,
        {&cmbArea, &cmbLoc, &cmbCat, &cmbType, &optPurNewUsed[0], &optPurNewUsed[1], &txtPur, &txtPPrice,
            &txtDescription, &chkWar, &cmbYear, &txtMake, &txtMod, &txtSerial, &optRecOnFile[0], &optRecOnFile[1],
            &txtLoc, &cmdWarranty, &cmdAdd, &cmdUpdate, &cmdDelete, &cmdCancel, &cmdMain, &cmdClear, &cmdPrint});
}

void frmAddUpDel::reset_Fields()
{
    if (chkClear.value() != 1 && ways::frmMain().FromResults)
        return;
    clear_ComboBoxes();
    cmbYear.setText("2005"); // this very year, on purpose
    empty_Details();
    optRecOnFile[1].setValue(true);
    txtLoc.setText({});
    txtDescription.setText("None");
}

void frmAddUpDel::empty_Details()
{
    optPurNewUsed[0].setValue(true);
    for (forms::TextBox* box : {&txtMake, &txtMod, &txtSerial})
        box->setText("Unknown");
    txtPur.setText(NoDate);
    txtPPrice.setText({});
}

void frmAddUpDel::clear_ComboBoxes()
{
    for (forms::ComboBox* box : {&cmbLoc, &cmbCat, &cmbType})
        box->clear();
}

void frmAddUpDel::fill_Lists(const areas::Area& area)
{
    fill_Name_List(cmbLoc, area.nameTable(), Names::Location);
    fill_Name_List(cmbCat, area.nameTable(), Names::Category);
}

void frmAddUpDel::open_List_Menu(const editing::Kind& kind)
{
    ListInEdit = kind.name;
    hide();
    const editing::List& list = editing::listOf(areas::ofNameUpper(cmbArea.text()), kind);
    auto& menu = screen<frmEditCmbBoxes>();
    menu.lblHead.setCaption(list.text(editing::MenuHeading));
    menu.MenuHelpNumber = list.menuHelp;
    menu.load_Help();
    clear_Menu_Options();
    menu.show();
    menu.cmdUpdate.setFocus();
}

void frmAddUpDel::clear_Menu_Options()
{
    auto& options = screen<frmEditCmbBoxes>().optEdit;
    for (int Index = 0; Index < options.count(); ++Index)
        options[Index].setValue(false);
}

void frmAddUpDel::open_Calendar()
{
    setEnabled(false);
    const auto give_Back = [this] { setEnabled(true); };
    const auto take_Date = [this](const forms::MonthCalendar& date) { txtPur.setText(frmCalendar::date_Text(date)); };
    screen<frmCalendar>().show_For({*this, DateForAsset, give_Back, take_Date}, txtPur.text());
}
