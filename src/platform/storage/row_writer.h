// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/storage/statement.h"
#include "platform/storage/table_definition.h"

#include <QByteArray>
#include <QString>

#include <span>
#include <vector>

namespace storage {

/// Adds row upon row to a table without a view of it, for a program that fills a database inside one transaction. A
/// view that is open doesn't learn of them.
class RowWriter {
public:
    RowWriter(sqlite3* handle, const TableDefinition& table);

    /// Adds a row with these texts, one for each column, as the file holds them; that of a column whose values the
    /// database gives counts for nothing. Failures: Database.
    void add(std::span<const QString> texts);

private:
    const TableDefinition& table_;
    Statement insert_;
    std::vector<QByteArray> cells_; // what is bound has to stay
};

} // namespace storage
