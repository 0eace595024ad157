// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/row_writer.h"

#include "platform/storage/sql.h"

namespace storage {

RowWriter::RowWriter(sqlite3* handle, const TableDefinition& table)
    : table_(table)
    , insert_(handle, sql::insertRow(table))
    , cells_(table.columns.size())
{
}

void RowWriter::add(std::span<const QString> texts)
{
    int parameter = 1;
    for (std::size_t column = 0; column < cells_.size(); ++column) {
        if (table_.columns[column].type == ColumnType::Identity)
            continue;
        cells_[column] = texts[column].toUtf8();
        insert_.bind(parameter++, std::string_view(cells_[column].constData(), std::size_t(cells_[column].size())));
    }
    insert_.run();
}

} // namespace storage
