// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/snapshot.h"

#include "platform/storage/row_set.h"
#include "platform/storage/table_view.h"
#include "platform/values/currency.h"
#include "platform/values/failure.h"

namespace storage {

namespace {

QString amountOf(const QString& tenThousandths)
{
    bool isNumber = false;
    const qint64 count = tenThousandths.toLongLong(&isNumber);
    return isNumber ? values::Currency::fromTenThousandths(count).toText() : tenThousandths;
}

} // namespace

Snapshot::Snapshot(std::shared_ptr<const TextPool> texts, const TableDefinition& definition, const RowSet& rows)
    : texts_(std::move(texts))
    , definition_(&definition)
{
    cells_.reserve(static_cast<std::size_t>(rows.count()) * columns());
    for (int row = rows.first(); row != RowSet::none; row = rows.next(row))
        cells_.insert(cells_.end(), rows.cells(row).begin(), rows.cells(row).end());
}

std::string_view Snapshot::utf8(int row, int ordinal) const
{
    if (row < 0 || row >= rowCount())
        throw values::RuntimeFailure(values::FailureKind::NoCurrentRecord, QString::fromUtf8(definition_->name));
    return texts_->utf8(cells_[static_cast<std::size_t>(row) * columns() + static_cast<std::size_t>(ordinal)]);
}

QString Snapshot::text(int row, int ordinal) const
{
    // Not by the pool's own texts, which stay in memory once they are looked at.
    const std::string_view bytes = utf8(row, ordinal);
    const QString text = QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
    const ColumnType type = definition_->columns[static_cast<std::size_t>(ordinal)].type;
    return type == ColumnType::Currency ? amountOf(text) : text;
}

Snapshot TableView::snapshot() const
{
    return {connection_.texts_, definition_, rows_};
}

} // namespace storage
