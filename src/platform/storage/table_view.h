// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/storage/connection.h"
#include "platform/storage/folded_text.h"
#include "platform/storage/row_set.h"
#include "platform/storage/snapshot.h"
#include "platform/storage/statement.h"
#include "platform/storage/table_definition.h"
#include "platform/values/currency.h"

#include <optional>

namespace storage {

class TableView;
struct SortKey;

/// A column of a view's current row. Every operation fails with NoCurrentRecord where the view stands on no row.
class Field {
public:
    Field(TableView& view, int ordinal)
        : view_(view)
        , ordinal_(ordinal)
    {
    }
    Field(const Field&) = default;

    /// The value as text; a Currency column as an amount, "$1,234.50". The text stays valid until the connection
    /// closes.
    const QString& text() const;

    /// The value as a number. Failures: TypeMismatch, where it doesn't read as one.
    qint64 integer() const;

    /// The value as an amount of money. Failures: TypeMismatch, where it doesn't read as one.
    values::Currency currency() const;

    /// Puts a value into the row, pending until the row is stored. Failures: TypeMismatch, where the column can't take
    /// the value, which leaves the row as it was; InvalidCall, where the database gives the value.
    Field& operator=(const QString& text);
    Field& operator=(const char* text) { return *this = QString::fromUtf8(text); }
    Field& operator=(qint64 number) { return *this = QString::number(number); }
    Field& operator=(int number) { return *this = qint64{number}; }
    Field& operator=(values::Currency amount);
    Field& operator=(const Field& other);

    /// Compares texts exactly; a number with the value as a number.
    bool operator==(const QString& other) const { return text() == other; }
    bool operator==(const char* other) const;
    bool operator==(int other) const { return integer() == other; }
    bool operator==(qint64 other) const { return integer() == other; }

    /// True where both are the same in upper case.
    bool equals(const FoldedText& text) const { return upper() == text.upper(); }

    /// True where the text occurs in this one, both in upper case. An empty text occurs in any but an empty one.
    bool contains(const FoldedText& text) const;

private:
    qint64 storedInteger() const;
    TextId textId() const;
    TextId amountId() const;
    std::string_view upper() const;

    TableView& view_;
    int ordinal_;
};

/// A table in memory, walked row by row. One row is current, and stays so between uses, or else the view stands before
/// its first row or behind its last. What is put into the current row is pending: `Update`, any move, `Sort` and the
/// next `AddNew` store it. A row stored is in the file for good when the call returns. Where storing fails (Database),
/// the pending values are dropped and the view holds what the file holds.
class TableView {
public:
    TableView(Connection& connection, const TableDefinition& definition);
    TableView(const TableView&) = delete;
    TableView& operator=(const TableView&) = delete;
    ~TableView();

    /// Reads all rows, in the order in which they were stored, and stands on the first. Opens the connection. Failures:
    /// Database, where the file can't be opened, is damaged, or lacks the table or one of its columns; InvalidCall,
    /// where the view is open.
    void Open();

    /// Drops pending values and the rows in memory; a staging table is written first. Closes the connection with the
    /// last view. Failures: Database, where a staging table can't be written; the view is closed all the same.
    void Close();

    bool isOpen() const { return open_; }

    /// The number of rows stored.
    int RecordCount() const { return rows_.count(); }

    /// Whether the view stands before its first row, behind its last. Both hold in a view without rows.
    bool atBOF() const { return atEnd(Place::Before); }
    bool atEOF() const { return atEnd(Place::Behind); }

    /// Failures: NoCurrentRecord in a view without rows.
    void MoveFirst();

    /// Behind the last row, `MoveNext` stays there; so does `MovePrevious` before the first.
    void MoveNext()
    {
        Update();
        if (place_ != Place::Behind)
            stand(place_ == Place::Before ? rows_.first() : rows_.next(row_), Place::Behind);
    }
    void MovePrevious();

    /// Stands on the row that the database knows by this number, or else behind the last.
    void MoveTo(qint64 number);

    /// Column `ordinal` of the current row, counted from 0. Failures: InvalidCall, where there is no such column.
    Field Fields(int ordinal)
    {
        requireColumn(ordinal);
        return Field(*this, ordinal);
    }

    /// Begins a new row, which is the current one: its texts are empty, its numbers and amounts zero. It counts once it
    /// is stored.
    void AddNew();

    /// Stores what is pending; the row stays current. Nothing happens where nothing is pending.
    void Update()
    {
        if (edit_ != Edit::None)
            storePending();
    }

    /// Drops what is pending. In place of a new row the one before is current again.
    void CancelUpdate();

    /// Deletes the current row, at once. The view stands in its place, on no row, until it is moved: `MoveNext` goes to
    /// the row that followed. A new row that is pending is only dropped. Failures: NoCurrentRecord; Database.
    void Delete();

    /// Orders the rows by columns, "Area, Make DESC", texts as `values::compareNames` has it, numbers by size, equal
    /// rows as they were stored, and stands on the first. An empty list gives the order in which they were stored. Rows
    /// added later come last. Failures: InvalidCall, where there is no such column.
    void Sort(const QString& columnList);

    /// The rows that are stored, in the order in which they are walked. The view stays where it stands.
    Snapshot snapshot() const;

private:
    friend class Connection;
    friend class Field;

    enum class Place { Before, Row, Hole, Behind };
    enum class Edit { None, Row, New };

    const Column& column(int ordinal) const { return definition_.columns[static_cast<std::size_t>(ordinal)]; }
    TextPool& texts() const { return connection_.texts_; }
    bool atEnd(Place end) const { return edit_ != Edit::New && (place_ == end || rows_.count() == 0); }

    TextId initial(ColumnType type) const;
    TextId cell(int ordinal) const;
    qint64 rowNumber() const;
    void requireRow() const
    {
        if (place_ != Place::Row)
            refuseRow();
    }
    [[noreturn]] void refuseRow() const;
    void requireColumn(int ordinal) const
    {
        if (ordinal < 0 || static_cast<std::size_t>(ordinal) >= definition_.columns.size())
            refuseColumn(ordinal);
    }
    [[noreturn]] static void refuseColumn(int ordinal);
    void put(int ordinal, TextId value);
    TextId cellFor(const Column& column, const QString& value) const;

    void load();
    void shut();
    void sortBy(const SortKey& key, std::vector<int>& order) const;
    void stand(int row, Place otherwise)
    {
        if (place_ == Place::Hole)
            rows_.recycle(row_);
        row_ = row;
        place_ = row == RowSet::none ? otherwise : Place::Row;
    }
    void storePending();
    void storeNew();
    void storeEdit();
    int bind(Statement& statement, std::span<const TextId> cells) const;
    Statement& prepared(std::optional<Statement>& statement, QByteArray (*sql)(const TableDefinition&));
    void flush();
    void writeAnew();

    Connection& connection_;
    const TableDefinition& definition_;
    RowSet rows_;
    bool open_ = false;
    Place place_ = Place::Behind;
    int row_ = RowSet::none;
    Edit edit_ = Edit::None;
    std::vector<TextId> pending_;
    bool unwritten_ = false; // a staging table that differs from the file
    qint64 lastRowId_ = 0;
    std::optional<Statement> insert_;
    std::optional<Statement> update_;
    std::optional<Statement> delete_;
};

// What a walk through many rows does at each of them.

inline TextId TableView::cell(int ordinal) const
{
    if (edit_ != Edit::None)
        return pending_[static_cast<std::size_t>(ordinal)];
    requireRow();
    return rows_.cell(row_, ordinal);
}

// What a column that the database numbers holds, at hand without its text.
inline qint64 TableView::rowNumber() const
{
    requireRow();
    return rows_.rowId(row_);
}

inline TextId Field::textId() const
{
    return view_.column(ordinal_).type == ColumnType::Currency ? amountId() : view_.cell(ordinal_);
}

inline std::string_view Field::upper() const
{
    return view_.texts().upper(textId());
}

inline qint64 Field::integer() const
{
    if (view_.column(ordinal_).type == ColumnType::Identity && view_.edit_ != TableView::Edit::New)
        return view_.rowNumber();
    return storedInteger();
}

} // namespace storage
