// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/storage/text_pool.h"

#include <span>
#include <vector>

namespace storage {

/// The rows of a table in memory, chained in the order in which they are walked. A row keeps its place until it is
/// recycled; all operations but `find`, `arrange` and `inTableOrder` take the same time however many rows there are.
class RowSet {
public:
    /// Behind the last row, before the first.
    static constexpr int none = -1;

    explicit RowSet(std::size_t columns)
        : columns_(columns)
    {
    }

    int count() const { return count_; }
    int first() const { return first_; }
    int last() const { return last_; }
    int next(int row) const { return at(row).next; }
    int previous(int row) const { return at(row).previous; }

    /// The number by which the file knows the row.
    qint64 rowId(int row) const { return at(row).id; }

    /// The row that the file knows by this number, or `none`. It looks at one number after the other where they lie,
    /// far faster than along the chain.
    int find(qint64 rowId) const;

    TextId cell(int row, int column) const { return cells_[cellAt(row) + static_cast<std::size_t>(column)]; }
    std::span<const TextId> cells(int row) const { return {&cells_[cellAt(row)], columns_}; }

    int append(qint64 rowId, std::span<const TextId> cells);
    void assign(int row, std::span<const TextId> cells);

    /// Takes the row out of the chain. Its own neighbours stay known, so that a walk can go on from it, until
    /// `recycle`.
    void remove(int row);

    /// Gives the place of a removed row to later ones.
    void recycle(int row) { free_.push_back(row); }

    /// All rows in the order in which they were stored.
    std::vector<int> inTableOrder() const;

    /// Chains the rows, all of them, in the order given.
    void arrange(std::span<const int> rows);

    void clear();

private:
    struct Row {
        qint64 id;
        int previous;
        int next;
    };

    std::size_t cellAt(int row) const { return static_cast<std::size_t>(row) * columns_; }
    const Row& at(int row) const { return rows_[static_cast<std::size_t>(row)]; }
    Row& at(int row) { return rows_[static_cast<std::size_t>(row)]; }
    int place();
    bool isChained(int row) const { return row == (at(row).previous == none ? first_ : next(at(row).previous)); }

    std::size_t columns_;
    std::vector<Row> rows_;
    std::vector<TextId> cells_;
    std::vector<int> free_;
    int first_ = none;
    int last_ = none;
    int count_ = 0;
};

} // namespace storage
