// SPDX-License-Identifier: GPL-3.0-or-later
#include "lists/frmUpdate.h"

#include "data/name_markers.h"
#include "lists/editing.h"
#include "lists/frmAddField.h"
#include "lists/name_list.h"
#include "platform/values/text.h"
#include "shared/conventions.h"
#include "shared/ways.h"

using forms::screen;

namespace {

// Names are told apart without regard to case here.
bool isNameIn(const editing::List& list, const QString& name, int standard)
{
    storage::TableView& table = list.names();
    return values::equalUpper(table.Fields(list.kind.column).text(), name) && table.Fields(Names::Standard) == standard;
}

} // namespace

frmUpdate::frmUpdate()
    : NumberedScreen("frmUpdate", 14)
{
    look();
}

void frmUpdate::Form_Activate()
{
    CurrentScreen = Number;
    if (const editing::List* list = editing::listWith(editing::ChangeHeading, lblHead4.caption()))
        HelpNumber = list->changeHelp;
    load_Help();
}

void frmUpdate::Form_Unload(bool& cancel)
{
    cancel = true;
    cmdCancel_Click();
}

void frmUpdate::cmdUpdate_Click()
{
    NameFound = false;
    if (editing::isMissing(cmbCat, "The Current Information Must Be Selected Before Updating!")
        || editing::isMissing(txtNew, "The New Information Must Be Entered Before Updating!"))
        return;
    const editing::List* list = editing::listWith(editing::ChangeHeading, lblHead4.caption());
    if (!list)
        return;
    if (is_Standard(*list)) {
        conventions::MsgBox("You Can Only Change Information That You Have Created!", forms::box::Exclamation);
        txtNew.setText({});
        cmbCat.setFocus();
        return;
    }
    change(*list);
    conventions::MsgBox(list->text("Your {area} {kind} Has Been Changed!"), forms::box::Information);
    screen<frmAddField>().SavedCategory = txtNew.text(); // a location's new name too, on purpose
    reload_Combo_Boxes();
    hide();
    ways::frmAddUpDel().show();
}

void frmUpdate::cmdCancel_Click()
{
    const bool untouched = cmbCat.text().isEmpty() && txtNew.text().isEmpty();
    if (untouched
        || conventions::confirmed("    All Changes Will Be Lost...Continue?", forms::box::Question + forms::box::YesNo))
        leave_To_Asset();
}

void frmUpdate::load_Combo()
{
    cmbCat.clear();
    cmdUpdate.setFocus();
    txtNew.setText({});
    editing::copyNames(cmbCat, editing::kindWith(editing::ChangeHeading, lblHead4.caption()));
}

void frmUpdate::load_Help()
{
    conventions::setHelpNumbers(HelpNumber, {&cmbCat, &cmdCancel, &cmdUpdate, &txtNew});
}

// One standard row is enough, whatever rows of the user hold the name too.
bool frmUpdate::is_Standard(const editing::List& list) const
{
    storage::TableView& table = list.names();
    for (rewind(table); !table.atEOF(); table.MoveNext())
        if (isNameIn(list, cmbCat.text(), 1))
            return true;
    return false;
}

// Each row is stored by itself and waits for the disk: what a failure in the midst leaves is whole rows, some changed
// and some not.
void frmUpdate::change(const editing::List& list)
{
    const forms::WaitPointer wait;
    if (list.names().RecordCount() != 0) {
        remove_Old_Name(list);
        add_New_Name(list);
    }
    change_Assets(list);
}

// The whole rows go, with the other names in them: on purpose, unlike a deletion. A typed "0" finds the rows without a
// name of this kind.
void frmUpdate::remove_Old_Name(const editing::List& list)
{
    storage::TableView& table = list.names();
    for (rewind(table); !table.atEOF(); table.MoveNext()) {
        if (!isNameIn(list, cmbCat.text(), 0))
            continue;
        table.Delete();
        table.Update();
        forms::keepPainted();
    }
}

// A standard row that has the name doesn't count.
void frmUpdate::add_New_Name(const editing::List& list)
{
    storage::TableView& table = list.names();
    for (rewind(table); !table.atEOF(); table.MoveNext())
        if (isNameIn(list, txtNew.text(), 0))
            NameFound = true;
    if (NameFound)
        return;
    table.AddNew();
    for (const auto column : {Names::Location, Names::Category, Names::Type, Names::Standard})
        table.Fields(column) = column == list.kind.column ? txtNew.text() : names::Blank;
    table.Update();
}

// Of the assets of this area only, and in exactly this spelling.
void frmUpdate::change_Assets(const editing::List& list)
{
    storage::TableView& assets = Data1.rsInventory;
    const QString area = ways::frmAddUpDel().cmbArea.text();
    const QString current = cmbCat.text();
    for (rewind(assets); !assets.atEOF(); assets.MoveNext()) {
        if (assets.Fields(list.kind.assetColumn) != current || assets.Fields(Inventory::Area) != area)
            continue;
        assets.Fields(list.kind.assetColumn) = txtNew.text();
        assets.Update();
        forms::keepPainted();
    }
}

void frmUpdate::reload_Combo_Boxes()
{
    if (const editing::List* list = editing::listWith(editing::ChangeHeading, lblHead4.caption()))
        editing::refillBox(*list);
    else
        reload_Items();
    auto& asset = ways::frmAddUpDel();
    (asset.ListInEdit == "Location" ? asset.cmbLoc : asset.cmbCat).setText(txtNew.text());
}

// No menu opens this editor for items: any heading that is no list's counts as theirs.
void frmUpdate::reload_Items()
{
    storage::TableView& table = lblHead4.caption() == "Change Indoor Item" ? Data1.rsIndoor
        : lblHead4.caption() == "Change Outdoor Item"                      ? Data1.rsOutdoor
                                                                           : Data1.rsMobile;
    forms::ComboBox& box = editing::boxOf(editing::items());
    box.clear();
    box.addItem(names::ItemMarker);
    add_Items_Of(box, table, cmbCat.text());
}

void frmUpdate::leave_To_Asset()
{
    screen<frmAddField>().reload_Combobox();
    hide();
    ways::frmAddUpDel().show();
}
