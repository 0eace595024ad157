// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/data_store.h"
#include "platform/forms/controls/combo_box.h"

/// Adds the names of a column that the list doesn't hold yet, each once, without regard to case, in the spelling of the
/// first row that has it. The list isn't emptied; the table stands behind its last row afterwards.
void fill_Name_List(forms::ComboBox& list, storage::TableView& table, Names::Column column);

/// Empties the list and fills it with the items of a category, by the same rule. A table without rows is left alone,
/// and so is its place.
void fill_Item_List(forms::ComboBox& list, storage::TableView& table, const QString& category);

/// Adds the items of a category, told apart exactly, to what the list holds.
void add_Items_Of(forms::ComboBox& list, storage::TableView& table, const QString& category);
