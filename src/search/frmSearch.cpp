// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/frmSearch.h"

#include "data/name_markers.h"
#include "lists/name_list.h"
#include "lists/new_names.h"
#include "platform/values/text.h"
#include "search/frmSearchResults.h"
#include "shared/conventions.h"
#include "shared/ways.h"

using forms::screen;

struct frmSearch::AreaWalk {
    const char* area; // in upper case
    storage::TableView DataStore::*names;
    bool settlesLocation;
    bool skipsItemMarker;
};

namespace {

const QString Any = QStringLiteral("Any");
const QString NoMarker;

bool isAny(const QString& text)
{
    return values::equalUpper(text, Any);
}

// Adds the names of a column that the list lacks, from the rows of a category where one is given.
void addNames(forms::ComboBox& list, storage::TableView& table, Names::Column column, const QString& marker,
    const QString* category = nullptr)
{
    if (table.RecordCount() == 0)
        return;
    NewNames found(list);
    for (table.MoveFirst(); !table.atEOF(); table.MoveNext()) {
        const QString& name = table.Fields(column).text();
        const bool wanted = !category || values::equalUpper(table.Fields(Names::Category).text(), *category);
        if (wanted && name != marker)
            found.take(name);
    }
    list.addItems(found.names());
}

// Adds "Any" unless it is found up to the place `bound`, which is looked at too.
void addAny(forms::ComboBox& list, int bound)
{
    for (int index = 0; index <= bound; ++index)
        if (isAny(list.list(index)))
            return;
    list.addItem(Any);
}

} // namespace

frmSearch::frmSearch()
    : SearchFields("frmSearch", 4)
{
    look();
}

void frmSearch::Form_Activate()
{
    CurrentScreen = Number;
}

void frmSearch::Form_Unload(bool& cancel)
{
    cancel = true;
    conventions::confirm_Close(*this);
}

// ---- lists

void frmSearch::cmbArea_Click()
{
    cmbArea.setLocked(true); // until its list opens again
    fill_Location_List();
}

void frmSearch::cmbLocation_GotFocus()
{
    is_Chosen(cmbArea, "Please Select An Area Before Selecting A Location!");
}

void frmSearch::cmbCat_GotFocus()
{
    if (is_Chosen(cmbArea, "Please Select An Area Before Selecting A Category!"))
        is_Chosen(cmbLocation, "Please Select A Location Before Selecting A Category!");
}

// The category is not asked for, on purpose.
void frmSearch::cmbType_GotFocus()
{
    if (is_Chosen(cmbArea, "Please Select An Area Before Selecting An Item!"))
        is_Chosen(cmbLocation, "Please Select A Location Before Selecting An Item!");
}

void frmSearch::cmbType_LostFocus()
{
    if (cmbType.text().isEmpty())
        cmbType.setText(Any);
}

bool frmSearch::is_Chosen(forms::ComboBox& box, const QString& demand)
{
    if (box.text() != Any)
        return true;
    conventions::MsgBox(demand, forms::box::Exclamation);
    box.setFocus();
    return false;
}

// ---- buttons

void frmSearch::cmdContinue_Click()
{
    auto& results = screen<frmSearchResults>();
    results.PageOffset = 0;
    results.FromSearchScreen = true;
    results.load_From_Search_Screen();
    if (!results.AnyShown)
        return;
    results.show();
    hide();
}

void frmSearch::cmdClearForm_Click()
{
    cmbArea.setEnabled(true);
    ClearLevel = 1;
    clear_listboxes();
    txtKey.setText({});
    txtKey.setFocus();
}

void frmSearch::cmdBack_Click()
{
    cmdContinue.setFocus();
    hide();
    if (ways::frmMain().FromMenu)
        ways::frmMain().show();
    else if (ways::frmPrint().CustomPrint)
        ways::frmPrint().show();
    else
        ways::frmAuto().show();
}

// ---- the cascade

void frmSearch::clear_listboxes()
{
    if (ClearLevel < 2)
        cmbArea.setText(Any);
    const std::pair<int, forms::ComboBox&> lists[] = {{3, cmbLocation}, {4, cmbCat}, {5, cmbType}};
    for (const auto& [level, list] : lists) {
        if (ClearLevel >= level)
            continue;
        list.clear();
        list.setText(Any);
    }
}

// The walk of the area chosen; none, and "Any" in the box, where its text names no area.
const frmSearch::AreaWalk* frmSearch::choose_Area()
{
    // The walks differ, on purpose.
    static constexpr AreaWalk walks[] = {
        {"INDOOR", &DataStore::rsIndoor, false, true},
        {"OUTDOOR", &DataStore::rsOutdoor, true, false},
        {"MOBILE", &DataStore::rsMobile, true, false},
    };
    AreaKey = values::upper(cmbArea.text());
    for (const AreaWalk& walk : walks)
        if (AreaKey == walk.area)
            return &walk;
    cmbArea.setText(Any);
    return nullptr;
}

// A blank cell is never taken into a list, so none has to be taken out of it.
void frmSearch::fill_Location_List()
{
    if (!isAny(cmbArea.text())) {
        ClearLevel = 2;
        clear_listboxes();
        if (const AreaWalk* walk = choose_Area()) {
            if (walk->settlesLocation)
                cmbLocation.setText(Any);
            addNames(cmbLocation, Data1.*walk->names, Names::Location, names::LocationMarker);
        }
    }
    addAny(cmbLocation, cmbLocation.listCount());
}

// All categories of the area, whatever the location.
void frmSearch::fill_Category_List()
{
    if (!isAny(cmbLocation.text())) {
        ClearLevel = 3;
        clear_listboxes();
        if (const AreaWalk* walk = choose_Area())
            addNames(cmbCat, Data1.*walk->names, Names::Category, names::CategoryMarker);
    }
    addAny(cmbCat, cmbCat.listCount());
}

void frmSearch::fill_Item_List()
{
    if (!isAny(cmbCat.text())) {
        ClearLevel = 4;
        clear_listboxes();
        const QString category = cmbCat.text();
        if (const AreaWalk* walk = choose_Area())
            addNames(cmbType, Data1.*walk->names, Names::Type, walk->skipsItemMarker ? names::ItemMarker : NoMarker,
                &category);
    }
    // As far as the list of categories goes, on purpose: an "Any" further down is not seen.
    addAny(cmbType, cmbCat.listCount());
}
