// SPDX-License-Identifier: GPL-3.0-or-later
#include "lists/frmEditCmbBoxes.h"

#include "lists/editing.h"
#include "lists/frmAddField.h"
#include "lists/frmDelField.h"
#include "lists/frmUpdate.h"
#include "platform/forms/look.h"
#include "platform/values/integer.h"
#include "platform/values/text.h"
#include "shared/conventions.h"
#include "shared/ways.h"

using forms::screen;

namespace {

const areas::Area& areaOfAsset()
{
    return areas::ofNameUpper(ways::frmAddUpDel().cmbArea.text());
}

// The end of the list reads as empty and is looked at too.
bool holds(const forms::ComboBox& box, const QString& name)
{
    for (int i = 0; i <= box.listCount(); ++i)
        if (values::equalUpper(box.list(i), name))
            return true;
    return false;
}

} // namespace

void frmEditCmbBoxes::Form_Activate()
{
    CurrentScreen = Number;
}

void frmEditCmbBoxes::Form_Unload(bool& cancel)
{
    cancel = true;
    cmdCancel_Click();
}

void frmEditCmbBoxes::cmdUpdate_Click()
{
    reset_Editors();
    if (optEdit[0].value())
        open_Add();
    else if (optEdit[1].value())
        open_Change();
    else if (optEdit[2].value())
        open_Delete();
    else
        conventions::MsgBox("You Must Select An Option Before Continuing!", forms::box::Exclamation);
}

void frmEditCmbBoxes::cmdCancel_Click()
{
    LocationIsNew = CategoryIsNew = ItemIsNew = true;
    editing::boxOf(editing::kindWith(editing::MenuHeading, lblHead.caption())).setText({});
    ways::frmAddUpDel().show();
    add_Again();
    hide();
    screen<frmAddField>().reload_Combobox();
}

void frmEditCmbBoxes::load_Help()
{
    conventions::setHelpNumbers(MenuHelpNumber, {&optEdit[0], &optEdit[1], &optEdit[2], &cmdCancel, &cmdUpdate});
}

// Whichever of them is opened next, and before it is known whether one is.
void frmEditCmbBoxes::reset_Editors()
{
    auto& add = screen<frmAddField>();
    auto& change = screen<frmUpdate>();
    auto& remove = screen<frmDelField>();
    add.txtAdd.setText({});
    remove.cmbCat.clear();
    for (forms::TextEntry* box :
        std::initializer_list<forms::TextEntry*>{&remove.cmbCat, &add.txtAdd, &change.cmbCat, &change.txtNew})
        box->setBackColour(forms::look::colours().field);
}

void frmEditCmbBoxes::open_Add()
{
    auto& editor = screen<frmAddField>();
    hide();
    editor.lblHead.setCaption(heading_Of(editing::AddHeading));
    editor.lblChoice.setCaption(kind_In_Heading().name);
    editor.show();
}

// This editor fills its list when it is on the screen, the next one before: on purpose.
void frmEditCmbBoxes::open_Change()
{
    auto& editor = screen<frmUpdate>();
    hide();
    editor.lblHead4.setCaption(heading_Of(editing::ChangeHeading));
    editor.show();
    editor.load_Combo();
}

void frmEditCmbBoxes::open_Delete()
{
    auto& editor = screen<frmDelField>();
    hide();
    editor.lblHead.setCaption(heading_Of(editing::DeleteHeading));
    editor.lblChoice.setCaption(kind_In_Heading().name);
    editor.load_Combo();
    editor.show();
}

QString frmEditCmbBoxes::heading_Of(const QString& pattern) const
{
    return editing::text(pattern, areaOfAsset(), kind_In_Heading());
}

// A heading of another area counts as one of items.
const editing::Kind& frmEditCmbBoxes::kind_In_Heading() const
{
    const editing::List* list = editing::listWith(editing::MenuHeading, lblHead.caption());
    return list && &list->area == &areaOfAsset() ? list->kind : editing::items();
}

// The name that was added last is in the list, and goes in once more: on purpose. Of a category goes in the number that
// it reads as, and a name that is no number ends the program.
void frmEditCmbBoxes::add_Again()
{
    auto& asset = ways::frmAddUpDel();
    const QString name = screen<frmAddField>().txtAdd.text();
    if (values::equalUpper(asset.ListInEdit, "Location")) {
        LocationIsNew = name.isEmpty() || !holds(asset.cmbLoc, name);
        if (!LocationIsNew)
            asset.cmbLoc.addItem(name);
    } else if (values::equalUpper(asset.ListInEdit, "Category")) {
        CategoryIsNew = name.isEmpty() || !holds(asset.cmbCat, name);
        if (!CategoryIsNew)
            asset.cmbCat.addItem(QString::number(values::wholeNumber(name) & values::bitsOf(!name.isEmpty())));
    } else {
        ItemIsNew = !holds(asset.cmbType, name);
        if (!ItemIsNew)
            asset.cmbType.addItem(name);
        CategoryIsNew = !holds(asset.cmbCat, name);
        if (!CategoryIsNew)
            asset.cmbCat.addItem(name);
    }
}
