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
/// nothing, all without regard to case. Failures: InvalidCall, where there is no such column.
std::vector<SortKey> parseSortOrder(const QString& columnList, const TableDefinition& table);

/// Compares two cells of a column: numbers and amounts by size, texts by their letters without regard to case. Below,
/// at or above zero.
int compareCells(ColumnType type, const QString& a, const QString& b);

} // namespace storage
