// SPDX-License-Identifier: GPL-3.0-or-later
#include "lists/frmDelField.h"

#include "data/name_markers.h"
#include "lists/editing.h"
#include "lists/frmAddField.h"
#include "shared/conventions.h"
#include "shared/ways.h"

using forms::screen;

namespace {

constexpr int Question = forms::box::Question + forms::box::YesNo;

} // namespace

frmDelField::frmDelField()
    : NumberedScreen("frmDelField", 16)
{
    look();
}

void frmDelField::Form_Activate()
{
    CurrentScreen = Number;
    if (const editing::List* list = editing::listWith(editing::DeleteHeading, lblHead.caption()))
        HelpNumber = list->deleteHelp;
    load_Help();
}

void frmDelField::Form_Unload(bool& cancel)
{
    cancel = true;
    cmdCancel_Click();
}

void frmDelField::cmdUpdate_Click()
{
    if (editing::isMissing(cmbCat, "Please Select An Item Before Continuing!"))
        return;
    const editing::List* list = editing::listWith(editing::DeleteHeading, lblHead.caption());
    if (!is_Confirmed(list)) // before all else, also of a name that is refused then
        return;
    if (list && &list->area == &areas::ofName(ways::frmAddUpDel().cmbArea.text())) {
        if (is_Refused(*list))
            return;
        blank_Name(*list);
        conventions::MsgBox(list->text("Your {area} {kind} Has Been Deleted!"), forms::box::Information);
        return_To_Asset();
    }
    load_Combo();
    reload_Combo_Boxes();
}

void frmDelField::cmdCancel_Click()
{
    if (cmbCat.text().isEmpty() || conventions::confirmed("   All Changes Will Be Lost...Continue?", Question))
        leave_To_Asset();
}

void frmDelField::load_Combo()
{
    cmbCat.clear();
    if (const editing::List* list = editing::listWith(editing::DeleteHeading, lblHead.caption()))
        editing::copyNames(cmbCat, list->kind);
}

void frmDelField::load_Help()
{
    conventions::setHelpNumbers(HelpNumber, {&cmbCat, &cmdCancel, &cmdUpdate});
}

bool frmDelField::is_Confirmed(const editing::List* list) const
{
    return !list || conventions::confirmed(list->text("Are You Sure You Want To Delete This {area} {kind}?"), Question);
}

bool frmDelField::is_Refused(const editing::List& list) const
{
    if (is_Standard(list)) {
        conventions::MsgBox(list.text("{kind} Can Not Be Deleted...You Can Only Delete A {kind} That You Have Added!"),
            forms::box::Information);
        return true;
    }
    if (is_In_Use(list)) {
        conventions::MsgBox(
            list.text("Assets Are Using This {kind}...Please Relocate Or Remove Asset(s) Before Deleting!"),
            forms::box::Stop);
        return true;
    }
    return false;
}

// Names are told apart exactly here: a row that has the name in another spelling is another name.
bool frmDelField::is_Standard(const editing::List& list) const
{
    storage::TableView& table = list.names();
    for (rewind(table); !table.atEOF(); table.MoveNext())
        if (table.Fields(list.kind.column) == cmbCat.text() && table.Fields(Names::Standard) == 1)
            return true;
    return false;
}

// By an asset of any area.
bool frmDelField::is_In_Use(const editing::List& list) const
{
    storage::TableView& assets = Data1.rsInventory;
    for (rewind(assets); !assets.atEOF(); assets.MoveNext())
        if (assets.Fields(list.kind.assetColumn) == cmbCat.text())
            return true;
    return false;
}

// The rows stay, with the other names in them, except that the items of a category go with it. Each row waits for the
// disk.
void frmDelField::blank_Name(const editing::List& list)
{
    const forms::WaitPointer wait;
    storage::TableView& table = list.names();
    for (rewind(table); !table.atEOF(); table.MoveNext()) {
        if (table.Fields(list.kind.column) != cmbCat.text())
            continue;
        table.Fields(list.kind.column) = names::Blank;
        if (list.kind.column == Names::Category)
            table.Fields(Names::Type) = names::Blank;
        if (!list.storesByMovingOn)
            table.Update();
        forms::keepPainted();
    }
}

void frmDelField::reload_Combo_Boxes()
{
    const editing::List* list = editing::listWith(editing::DeleteHeading, lblHead.caption());
    if (!list)
        return;
    editing::refillBox(*list);
    editing::boxOf(list->kind).setText({});
}

void frmDelField::return_To_Asset()
{
    hide();
    ways::frmAddUpDel().show();
}

void frmDelField::leave_To_Asset()
{
    screen<frmAddField>().reload_Combobox();
    return_To_Asset();
}
