// SPDX-License-Identifier: GPL-3.0-or-later
#include "lists/editing.h"

#include "data/name_markers.h"
#include "lists/name_list.h"
#include "platform/forms/look.h"
#include "shared/conventions.h"
#include "shared/ways.h"

#include <algorithm>
#include <array>

namespace editing {

namespace {

const std::array<List, 6>& lists()
{
    static const areas::Area& indoor = areas::ofName("Indoor");
    static const areas::Area& outdoor = areas::ofName("Outdoor");
    static const areas::Area& mobile = areas::ofName("Mobile");
    // How a deletion stores its rows differs without a pattern, on purpose.
    static const std::array<List, 6> lists{{
        {indoor, locations(), 17001, 23001, 29001, 35001, false},
        {indoor, categories(), 20001, 24001, 30001, 36001, true},
        {outdoor, locations(), 18001, 25001, 31001, 37001, true},
        {outdoor, categories(), 21001, 26001, 32001, 38001, true},
        {mobile, locations(), 19001, 27001, 33001, 39001, false},
        {mobile, categories(), 22001, 28001, 34001, 40001, false},
    }};
    return lists;
}

} // namespace

const Kind& locations()
{
    static const Kind kind{
        "Location", Names::Location, Inventory::Location, names::LocationMarker, &AssetScreen::cmbLoc};
    return kind;
}

const Kind& categories()
{
    static const Kind kind{
        "Category", Names::Category, Inventory::Category, names::CategoryMarker, &AssetScreen::cmbCat};
    return kind;
}

const Kind& items()
{
    static const Kind kind{"Item", Names::Type, Inventory::Type, names::ItemMarker, &AssetScreen::cmbType};
    return kind;
}

QString List::text(const QString& pattern) const
{
    return editing::text(pattern, area, kind);
}

QString text(const QString& pattern, const areas::Area& area, const Kind& kind)
{
    return QString(pattern).replace("{area}", area.name).replace("{kind}", kind.name);
}

const List& listOf(const areas::Area& area, const Kind& kind)
{
    return *std::find_if(
        lists().begin(), lists().end(), [&](const List& list) { return &list.area == &area && &list.kind == &kind; });
}

const List* listWith(const QString& pattern, const QString& text)
{
    const auto found =
        std::find_if(lists().begin(), lists().end(), [&](const List& list) { return list.text(pattern) == text; });
    return found == lists().end() ? nullptr : &*found;
}

const Kind& kindWith(const QString& pattern, const QString& text)
{
    const List* list = listWith(pattern, text);
    return list ? list->kind : items();
}

forms::ComboBox& boxOf(const Kind& kind)
{
    return ways::frmAddUpDel().*kind.box;
}

bool isMissing(forms::TextEntry& box, const QString& message)
{
    if (!box.text().isEmpty()) {
        box.setBackColour(forms::look::colours().field);
        return false;
    }
    conventions::MsgBox(message, forms::box::Exclamation);
    box.setFocus();
    box.setBackColour(forms::look::colours().error);
    return true;
}

void copyNames(forms::ComboBox& list, const Kind& kind)
{
    const forms::ComboBox& source = boxOf(kind);
    QStringList names;
    for (int i = 0; i <= source.listCount(); ++i)
        if (!source.list(i).isEmpty() && source.list(i) != kind.marker)
            names.append(source.list(i));
    list.addItems(names);
}

void refillBox(const List& list)
{
    forms::ComboBox& box = boxOf(list.kind);
    box.clear();
    box.addItem(list.kind.marker);
    fill_Name_List(box, list.names(), list.kind.column);
}

} // namespace editing
