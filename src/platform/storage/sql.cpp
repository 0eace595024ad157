// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/sql.h"

#include <QByteArrayList>

namespace storage::sql {

namespace {

QByteArray typeOf(ColumnType type)
{
    switch (type) {
    case ColumnType::Identity:
        return "INTEGER PRIMARY KEY AUTOINCREMENT NOT NULL";
    case ColumnType::Integer:
    case ColumnType::Currency:
        return "INTEGER NOT NULL";
    case ColumnType::Text:
    case ColumnType::Money:
        break;
    }
    return "TEXT NOT NULL";
}

QByteArrayList writtenColumns(const TableDefinition& table, const QByteArray& suffix = {})
{
    QByteArrayList names;
    for (const Column& column : table.columns) {
        if (column.type != ColumnType::Identity)
            names += quoted(column.name) + suffix;
    }
    return names;
}

} // namespace

QByteArray quoted(const char* name)
{
    return '"' + QByteArray(name).replace('"', "\"\"") + '"';
}

QByteArray createTable(const TableDefinition& table)
{
    QByteArrayList columns;
    for (const Column& column : table.columns)
        columns += quoted(column.name) + ' ' + typeOf(column.type);
    return "CREATE TABLE " + quoted(table.name) + " (" + columns.join(", ") + ')';
}

QByteArray selectRows(const TableDefinition& table)
{
    QByteArrayList columns{"t.rowid"};
    // The engine takes a name in quotes for a text where there is no such column, but not behind a table's name.
    for (const Column& column : table.columns)
        columns += "t." + quoted(column.name);
    return "SELECT " + columns.join(", ") + " FROM " + quoted(table.name) + " AS t ORDER BY t.rowid";
}

QByteArray insertRow(const TableDefinition& table)
{
    const QByteArrayList columns = writtenColumns(table);
    const QByteArrayList parameters(columns.size(), "?");
    return "INSERT INTO " + quoted(table.name) + " (" + columns.join(", ") + ") VALUES (" + parameters.join(", ") + ')';
}

QByteArray updateRow(const TableDefinition& table)
{
    return "UPDATE " + quoted(table.name) + " SET " + writtenColumns(table, " = ?").join(", ") + " WHERE rowid = ?";
}

QByteArray deleteRow(const TableDefinition& table)
{
    return "DELETE FROM " + quoted(table.name) + " WHERE rowid = ?";
}

QByteArray deleteRows(const TableDefinition& table)
{
    return "DELETE FROM " + quoted(table.name);
}

} // namespace storage::sql
