// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/table_view.h"

#include "platform/storage/sort_order.h"
#include "platform/storage/sql.h"
#include "platform/values/failure.h"

#include <algorithm>
#include <exception>
#include <utility>

using values::FailureKind;
using values::RuntimeFailure;

namespace storage {

TableView::TableView(Connection& connection, const TableDefinition& definition)
    : connection_(connection)
    , definition_(definition)
    , rows_(definition.columns.size())
{
}

TableView::~TableView()
{
    try {
        Close();
    } catch (const RuntimeFailure&) {
        // There is nobody left to tell, and a staging table can be made again.
    }
}

void TableView::Open()
{
    if (open_)
        throw RuntimeFailure(FailureKind::InvalidCall, QStringLiteral("the view is open"));
    connection_.enter(*this);
    open_ = true;
    try {
        load();
    } catch (const RuntimeFailure&) {
        shut();
        throw;
    }
}

void TableView::Close()
{
    if (!open_)
        return;
    edit_ = Edit::None;
    std::exception_ptr failure;
    try {
        flush();
    } catch (const RuntimeFailure&) {
        failure = std::current_exception();
    }
    shut();
    if (failure)
        std::rethrow_exception(failure);
}

void TableView::shut()
{
    for (std::optional<Statement>* statement : {&insert_, &update_, &delete_})
        statement->reset();
    rows_.clear();
    place_ = Place::Behind;
    unwritten_ = false;
    open_ = false;
    connection_.leave(*this);
}

void TableView::load()
{
    rows_.clear();
    place_ = Place::Behind;
    std::vector<TextId> cells(definition_.columns.size(), TextPool::empty);
    Statement select(connection_.handle(), sql::selectRows(definition_));
    while (select.step()) {
        for (std::size_t i = 0; i < cells.size(); ++i) {
            const std::string_view text = select.text(static_cast<int>(i) + 1);
            // Neighbouring rows often hold the same.
            if (text != texts().utf8(cells[i]))
                cells[i] = texts().intern(text);
        }
        lastRowId_ = select.number(0);
        rows_.append(lastRowId_, cells);
    }
    stand(rows_.first(), Place::Behind);
}

// Position

void TableView::MoveFirst()
{
    Update();
    if (rows_.count() == 0)
        throw RuntimeFailure(FailureKind::NoCurrentRecord, QString::fromUtf8(definition_.name));
    stand(rows_.first(), Place::Behind);
}

void TableView::MovePrevious()
{
    Update();
    if (place_ != Place::Before)
        stand(place_ == Place::Behind ? rows_.last() : rows_.previous(row_), Place::Before);
}

void TableView::MoveTo(qint64 number)
{
    Update();
    stand(rows_.find(number), Place::Behind);
}

void TableView::Sort(const QString& columnList)
{
    const std::vector<SortKey> keys = parseSortOrder(columnList, definition_);
    Update();
    std::vector<int> order = rows_.inTableOrder();
    for (auto key = keys.rbegin(); key != keys.rend(); ++key)
        sortBy(*key, order);
    rows_.arrange(order);
    stand(rows_.first(), Place::Behind);
}

void TableView::sortBy(const SortKey& key, std::vector<int>& order) const
{
    std::vector<TextId> cells(order.size());
    std::ranges::transform(order, cells.begin(), [&](int row) { return rows_.cell(row, key.ordinal); });
    const std::vector<int> places = placesOf(column(key.ordinal).type, cells, texts());
    std::vector<std::pair<int, int>> placed(order.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        placed[i] = {key.descending ? -places[i] : places[i], order[i]};
    std::ranges::stable_sort(placed, {}, &std::pair<int, int>::first);
    std::ranges::transform(placed, order.begin(), &std::pair<int, int>::second);
}

// Values

void TableView::refuseColumn(int ordinal)
{
    throw RuntimeFailure(FailureKind::InvalidCall, QStringLiteral("no column %1").arg(ordinal));
}

void TableView::refuseRow() const
{
    throw RuntimeFailure(FailureKind::NoCurrentRecord, QString::fromUtf8(definition_.name));
}

void TableView::put(int ordinal, TextId value)
{
    if (cell(ordinal) == value)
        return;
    if (edit_ == Edit::None) {
        const auto cells = rows_.cells(row_);
        pending_.assign(cells.begin(), cells.end());
        edit_ = Edit::Row;
    }
    pending_[static_cast<std::size_t>(ordinal)] = value;
}

TextId TableView::initial(ColumnType type) const
{
    switch (type) {
    case ColumnType::Text:
        return TextPool::empty;
    case ColumnType::Money:
        return texts().intern(values::Currency().toText());
    default:
        return texts().intern(qint64{0});
    }
}

// Storing

void TableView::AddNew()
{
    Update();
    if (!open_)
        throw RuntimeFailure(FailureKind::InvalidCall, QStringLiteral("the view is not open"));
    pending_.clear();
    for (const Column& column : definition_.columns)
        pending_.push_back(initial(column.type));
    edit_ = Edit::New;
}

void TableView::storePending()
{
    // Whatever becomes of it, nothing is pending afterwards.
    switch (std::exchange(edit_, Edit::None)) {
    case Edit::None:
        return;
    case Edit::Row:
        return storeEdit();
    case Edit::New:
        return storeNew();
    }
}

void TableView::CancelUpdate()
{
    edit_ = Edit::None;
}

void TableView::storeEdit()
{
    if (definition_.staging) {
        unwritten_ = true;
    } else {
        Statement& update = prepared(update_, sql::updateRow);
        update.bind(bind(update, pending_), rows_.rowId(row_));
        connection_.store(update);
    }
    rows_.assign(row_, pending_);
}

void TableView::storeNew()
{
    if (definition_.staging) {
        unwritten_ = true;
        ++lastRowId_;
    } else {
        Statement& insert = prepared(insert_, sql::insertRow);
        bind(insert, pending_);
        connection_.store(insert);
        lastRowId_ = lastInsertedRow(connection_.handle());
    }
    for (std::size_t i = 0; i < pending_.size(); ++i) {
        if (definition_.columns[i].type == ColumnType::Identity)
            pending_[i] = texts().intern(lastRowId_);
    }
    stand(rows_.append(lastRowId_, pending_), Place::Behind);
}

void TableView::Delete()
{
    if (std::exchange(edit_, Edit::None) == Edit::New)
        return;
    requireRow();
    if (definition_.staging) {
        unwritten_ = true;
    } else {
        Statement& deletion = prepared(delete_, sql::deleteRow);
        deletion.bind(1, rows_.rowId(row_));
        connection_.store(deletion);
    }
    rows_.remove(row_);
    place_ = Place::Hole;
}

Statement& TableView::prepared(std::optional<Statement>& statement, QByteArray (*sql)(const TableDefinition&))
{
    if (!statement)
        statement.emplace(connection_.handle(), sql(definition_));
    return *statement;
}

// Gives the number of the next parameter.
int TableView::bind(Statement& statement, std::span<const TextId> cells) const
{
    int parameter = 1;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (definition_.columns[i].type != ColumnType::Identity)
            statement.bind(parameter++, texts().utf8(cells[i]));
    }
    return parameter;
}

void TableView::flush()
{
    if (!std::exchange(unwritten_, false))
        return;
    try {
        writeAnew();
    } catch (const RuntimeFailure&) {
        edit_ = Edit::None;
        load();
        throw;
    }
}

// A staging table is filled from nothing each time, so it is written whole.
void TableView::writeAnew()
{
    Transaction transaction(connection_.handle());
    execute(connection_.handle(), sql::deleteRows(definition_));
    Statement& insert = prepared(insert_, sql::insertRow);
    for (int row = rows_.first(); row != RowSet::none; row = rows_.next(row)) {
        bind(insert, rows_.cells(row));
        insert.run();
    }
    connection_.confirm(transaction);
}

} // namespace storage
