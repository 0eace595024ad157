// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/layout.h"

#include <algorithm>
#include <limits>

namespace report {

namespace {

template <class Items>
void widen(Extent& extent, const Items& items)
{
    for (const auto& item : items) {
        extent.left = std::min(extent.left, item.place.left);
        extent.right = std::max(extent.right, item.place.left + item.place.width);
    }
}

void widen(Extent& extent, const Section& section)
{
    widen(extent, section.labels);
    widen(extent, section.fields);
    widen(extent, section.pictures);
    widen(extent, section.rules);
    widen(extent, section.boxes);
    if (section.growing)
        widen(extent, std::initializer_list<Field>{*section.growing});
}

} // namespace

Extent extentOf(const Layout& layout)
{
    Extent extent{std::numeric_limits<double>::max(), 0};
    for (const Section* section : {&layout.pageHeader, &layout.detail, &layout.pageFooter})
        widen(extent, *section);
    return extent;
}

std::vector<const Field*> fieldsOf(const Section& section)
{
    std::vector<const Field*> fields;
    for (const Field& field : section.fields)
        fields.push_back(&field);
    if (section.growing)
        fields.push_back(&*section.growing);
    return fields;
}

} // namespace report
