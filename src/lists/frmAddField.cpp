// SPDX-License-Identifier: GPL-3.0-or-later
#include "lists/frmAddField.h"

#include "data/name_markers.h"
#include "lists/editing.h"
#include "platform/forms/look.h"
#include "platform/values/text.h"
#include "shared/conventions.h"
#include "shared/option_menu.h"
#include "shared/ways.h"

frmAddField::frmAddField()
    : NumberedScreen("frmAddField", 11)
{
    look();
}

void frmAddField::Form_Activate()
{
    CurrentScreen = Number;
    const QString menuHeading = ways::frmEditCmbBoxes().lblHead.caption();
    if (const editing::List* list = editing::listWith(editing::MenuHeading, menuHeading))
        HelpNumber = list->addHelp;
    load_Help();
    txtAdd.setFocus();
}

void frmAddField::Form_Unload(bool& cancel)
{
    cancel = true;
    cmdCancel_Click();
}

void frmAddField::cmdUpdate_Click()
{
    if (txtAdd.text().isEmpty()) {
        conventions::MsgBox("Please Enter Information Before Continuing!", forms::box::Exclamation);
        mark_Text();
        return;
    }
    txtAdd.setBackColour(forms::look::colours().field);
    const areas::Area& area = areas::ofName(ways::frmAddUpDel().cmbArea.text());
    const editing::List* list = editing::listWith(editing::AddHeading, lblHead.caption());
    if (!list || &list->area != &area)
        return;
    if (is_Available(*list)) {
        conventions::MsgBox(list->text("This {area} {kind} Is Already Available!"), forms::box::Exclamation);
        mark_Text();
        return;
    }
    add_Name(*list);
    conventions::MsgBox(list->text(" Your {area} {kind} Has Been Added!"), forms::box::Information);
}

void frmAddField::cmdCancel_Click()
{
    if (txtAdd.text().isEmpty()
        || conventions::confirmed(
            "   All Changes Will Be Lost...Continue?", forms::box::Question + forms::box::YesNo)) {
        clear_It();
        hide();
        ways::frmAddUpDel().show();
    }
    reload_Combobox(); // after No as well
}

void frmAddField::clear_It()
{
    const bool location = &editing::kindWith(editing::AddHeading, lblHead.caption()) == &editing::locations();
    editing::boxOf(location ? editing::locations() : editing::categories()).setText({});
}

void frmAddField::reload_Combobox()
{
    auto& asset = ways::frmAddUpDel();
    if (asset.ListInEdit == "Category")
        asset.cmbCat.setText(SavedCategory == names::CategoryMarker ? QString() : SavedCategory);
    else
        asset.cmbLoc.setText(SavedLocation == names::LocationMarker ? QString() : SavedLocation);
}

void frmAddField::load_Help()
{
    conventions::setHelpNumbers(HelpNumber, {&txtAdd, &cmdCancel, &cmdUpdate});
}

void frmAddField::mark_Text()
{
    txtAdd.setBackColour(forms::look::colours().error);
    txtAdd.setFocus();
    txtAdd.selectAll();
}

// In any row, standard or the user's; the view stays on the row that has the name.
bool frmAddField::is_Available(const editing::List& list) const
{
    storage::TableView& table = list.names();
    const QString name = txtAdd.text();
    for (rewind(table); !table.atEOF(); table.MoveNext())
        if (values::equalUpper(table.Fields(list.kind.column).text(), name))
            return true;
    return false;
}

void frmAddField::add_Name(const editing::List& list)
{
    storage::TableView& table = list.names();
    rewind(table);
    table.AddNew();
    forms::ComboBox& box = editing::boxOf(list.kind);
    box.addItem(txtAdd.text());
    box.setText(txtAdd.text());
    for (const auto column : {Names::Location, Names::Category, Names::Type, Names::Standard})
        table.Fields(column) = column == list.kind.column ? txtAdd.text() : names::Blank;
    table.Update();
}
