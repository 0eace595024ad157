// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/storage/table_definition.h"

#include <QString>

#include <string>
#include <string_view>
#include <vector>

namespace storage {

/// The rows of a table as they stood when it was taken. What happens to the view later doesn't reach it, nor does the
/// end of the connection. The cells lie in one piece, as the file holds them: a file is read by putting one behind the
/// other, which is far less than to find out which texts are known already.
class Snapshot {
public:
    explicit Snapshot(const TableDefinition& definition)
        : definition_(&definition)
    {
    }

    /// Makes room for so many cells.
    void reserve(std::size_t cells) { ends_.reserve(cells); }

    /// The cell behind the last one, column by column, row by row.
    void append(std::string_view utf8)
    {
        texts_.append(utf8);
        ends_.push_back(texts_.size());
    }

    int rowCount() const { return static_cast<int>(ends_.size() / definition_->columns.size()); }

    /// The value as text, as `Field::text` gives it; what should be an amount and is none, as the file holds it.
    /// Failures: NoCurrentRecord, where there is no such row.
    QString text(int row, int ordinal) const;

    /// The value as the file holds it, in UTF-8; an amount of a Currency column in ten-thousandths. Valid as long as
    /// the snapshot. Failures: NoCurrentRecord, where there is no such row.
    std::string_view utf8(int row, int ordinal) const;

    const TableDefinition& definition() const { return *definition_; }

private:
    const TableDefinition* definition_;
    std::string texts_;
    std::vector<std::size_t> ends_;
};

} // namespace storage
