// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/storage/engine.h"
#include "platform/storage/table_definition.h"

#include <QString>

#include <span>
#include <vector>

namespace storage {

/// Makes a new database with these tables, empty, in a file that only its owner can read. Failures: File, where there
/// is a file already or none can be made; Database.
void createDatabase(const QString& path, const FileKey& key, std::span<const TableDefinition* const> tables);

/// A table and the number of its rows.
struct TableCount {
    QString table;
    qint64 rows;
    bool operator==(const TableCount&) const = default;
};

/// Reads a database file to its last page, as a copy is proved: its key, each page's checksum, its structure. Opens it
/// for reading only. Gives all tables with their rows, by name. Failures: Database, where anything is not in order, or
/// the file holds no tables.
std::vector<TableCount> checkDatabase(const QString& path, const FileKey& key);

} // namespace storage
