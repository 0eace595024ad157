// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/storage/table_definition.h"

#include <QByteArray>

namespace storage::sql {

// The statements on one table. A row is known by its rowid, which an Identity column shows; values are bound as texts,
// in the order of the columns and without the Identity, and take the column's type in the file.

QByteArray quoted(const char* name);
QByteArray createTable(const TableDefinition& table);
QByteArray selectRows(const TableDefinition& table);
QByteArray insertRow(const TableDefinition& table);
QByteArray updateRow(const TableDefinition& table); // the rowid is the last parameter
QByteArray deleteRow(const TableDefinition& table);
QByteArray deleteRows(const TableDefinition& table);

} // namespace storage::sql
