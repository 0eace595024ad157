// SPDX-License-Identifier: GPL-3.0-or-later
#include "lists/name_list.h"

#include "lists/new_names.h"
#include "platform/values/text.h"

namespace {

// The names of a column in those rows that `takes` wants.
template <class Test>
void addNames(forms::ComboBox& list, storage::TableView& table, Names::Column column, Test takes)
{
    NewNames found(list);
    for (rewind(table); !table.atEOF(); table.MoveNext())
        if (takes())
            found.take(table.Fields(column).text());
    list.addItems(found.names());
}

} // namespace

void fill_Name_List(forms::ComboBox& list, storage::TableView& table, Names::Column column)
{
    addNames(list, table, column, [] { return true; });
}

void fill_Item_List(forms::ComboBox& list, storage::TableView& table, const QString& category)
{
    list.clear();
    addNames(
        list, table, Names::Type, [&] { return values::equalUpper(table.Fields(Names::Category).text(), category); });
}

void add_Items_Of(forms::ComboBox& list, storage::TableView& table, const QString& category)
{
    addNames(list, table, Names::Type, [&] { return table.Fields(Names::Category) == category; });
}
