// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/storage/table_definition.h"
#include "platform/storage/text_pool.h"

#include <vector>

namespace storage {

/// A column by which rows are ordered.
struct SortKey {
    int ordinal;
    bool descending;
};

/// Reads "Area, [Date Purchased] DESC": names of columns, in brackets or not, each with ASC or DESC behind it or
/// nothing, the words without regard to case. Failures: InvalidCall, where there is no such column.
std::vector<SortKey> parseSortOrder(const QString& columnList, const TableDefinition& table);

/// Where each of a column's cells stands among the others, counted from 0, in the order of their values: numbers and
/// amounts by size, texts as `values::compareNames` has it. Cells of equal values share a place.
std::vector<int> placesOf(ColumnType type, const std::vector<TextId>& cells, const TextPool& texts);

} // namespace storage
