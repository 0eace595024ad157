// SPDX-License-Identifier: GPL-3.0-or-later
#include "shared/areas.h"

#include "platform/values/text.h"

#include <algorithm>
#include <array>

namespace areas {

namespace {

// Mobile stands last: it is what any other text counts as. Only Indoor prepares before telling, on purpose.
const std::array<Area, 3>& table()
{
    static const std::array<Area, 3> areas{{
        {"Indoor", "Indoor Asset Management", 9001, "Add Indoor Asset To Inventory", 12001, &DataStore::rsIndoor,
            "Indoor_Items", true},
        {"Outdoor", "Outdoor Asset Management", 10001, "Add Outdoor Asset To Inventory", 13001, &DataStore::rsOutdoor,
            "Outdoor_Items", false},
        {"Mobile", "Mobile Asset Management", 11001, "Add Mobile Asset To Inventory", 14001, &DataStore::rsMobile,
            "Mobile_Items", false},
    }};
    return areas;
}

template <class Test>
const Area* first(Test test)
{
    const auto found = std::find_if(table().begin(), table().end(), test);
    return found == table().end() ? nullptr : &*found;
}

const Area& orMobile(const Area* area)
{
    return area ? *area : table().back();
}

} // namespace

std::span<const Area> all()
{
    return table();
}

const Area& ofMenuTitle(const QString& title)
{
    return orMobile(first([&title](const Area& area) { return area.menuTitle == title; }));
}

const Area& ofName(const QString& name)
{
    return orMobile(find(name));
}

const Area& ofNameUpper(const QString& name)
{
    return orMobile(findUpper(name));
}

const Area* find(const QString& name)
{
    return first([&name](const Area& area) { return area.name == name; });
}

const Area* findUpper(const QString& name)
{
    return first([&name](const Area& area) { return values::equalUpper(area.name, name); });
}

} // namespace areas
