// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/storage/table_definition.h"
#include "platform/storage/text_pool.h"

#include <QString>

#include <memory>
#include <vector>

namespace storage {

class RowSet;

/// The rows of a table as they stood when it was taken. What happens to the view later doesn't reach it, nor does the
/// end of the connection. A cell takes four bytes: the texts are the view's own, and are read when they are asked for.
class Snapshot {
public:
    Snapshot(std::shared_ptr<const TextPool> texts, const TableDefinition& definition, const RowSet& rows);

    int rowCount() const { return static_cast<int>(cells_.size() / columns()); }

    /// The value as text, as `Field::text` gives it; what should be an amount and is none, as the file holds it.
    /// Failures: NoCurrentRecord, where there is no such row.
    QString text(int row, int ordinal) const;

    /// The value as the file holds it, in UTF-8; an amount of a Currency column in ten-thousandths. Valid as long as
    /// the snapshot. Failures: NoCurrentRecord, where there is no such row.
    std::string_view utf8(int row, int ordinal) const;

    const TableDefinition& definition() const { return *definition_; }

private:
    std::size_t columns() const { return definition_->columns.size(); }

    std::shared_ptr<const TextPool> texts_;
    const TableDefinition* definition_;
    std::vector<TextId> cells_;
};

} // namespace storage
