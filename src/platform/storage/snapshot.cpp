// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/snapshot.h"

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

std::string_view Snapshot::utf8(int row, int ordinal) const
{
    if (row < 0 || row >= rowCount())
        throw values::RuntimeFailure(values::FailureKind::NoCurrentRecord, QString::fromUtf8(definition_->name));
    const std::size_t cell =
        static_cast<std::size_t>(row) * definition_->columns.size() + static_cast<std::size_t>(ordinal);
    const std::size_t begin = cell == 0 ? 0 : ends_[cell - 1];
    return std::string_view(texts_).substr(begin, ends_[cell] - begin);
}

QString Snapshot::text(int row, int ordinal) const
{
    const std::string_view bytes = utf8(row, ordinal);
    const QString text = QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
    const ColumnType type = definition_->columns[static_cast<std::size_t>(ordinal)].type;
    return type == ColumnType::Currency ? amountOf(text) : text;
}

Snapshot TableView::snapshot() const
{
    Snapshot rows(definition_);
    rows.reserve(static_cast<std::size_t>(RecordCount()) * definition_.columns.size());
    for (int row = rows_.first(); row != RowSet::none; row = rows_.next(row))
        for (const TextId cell : rows_.cells(row))
            rows.append(texts().utf8(cell));
    return rows;
}

} // namespace storage
