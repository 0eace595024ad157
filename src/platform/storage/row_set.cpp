// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/row_set.h"

#include <algorithm>

namespace storage {

void RowSet::assign(int row, std::span<const TextId> cells)
{
    std::ranges::copy(cells, &cells_[cellAt(row)]);
}

int RowSet::place()
{
    if (!free_.empty()) {
        const int row = free_.back();
        free_.pop_back();
        return row;
    }
    rows_.emplace_back();
    cells_.resize(rows_.size() * columns_);
    return static_cast<int>(rows_.size()) - 1;
}

int RowSet::append(qint64 rowId, std::span<const TextId> cells)
{
    const int row = place();
    at(row) = {rowId, last_, none};
    assign(row, cells);
    (last_ == none ? first_ : at(last_).next) = row;
    last_ = row;
    ++count_;
    return row;
}

int RowSet::find(qint64 rowId) const
{
    for (auto found = rows_.begin();; ++found) {
        found = std::ranges::find(found, rows_.end(), rowId, &Row::id);
        if (found == rows_.end())
            return none;
        if (const auto row = static_cast<int>(found - rows_.begin()); isChained(row))
            return row;
    }
}

void RowSet::remove(int row)
{
    const auto [id, before, after] = at(row);
    (before == none ? first_ : at(before).next) = after;
    (after == none ? last_ : at(after).previous) = before;
    --count_;
}

std::vector<int> RowSet::inTableOrder() const
{
    std::vector<int> order;
    order.reserve(static_cast<std::size_t>(count_));
    for (int row = first_; row != none; row = next(row))
        order.push_back(row);
    std::ranges::sort(order, {}, [this](int row) { return rowId(row); });
    return order;
}

void RowSet::arrange(std::span<const int> rows)
{
    first_ = last_ = none;
    for (const int row : rows) {
        at(row).previous = last_;
        at(row).next = none;
        (last_ == none ? first_ : at(last_).next) = row;
        last_ = row;
    }
}

void RowSet::clear()
{
    *this = RowSet(columns_);
}

} // namespace storage
