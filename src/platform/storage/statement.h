// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <memory>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace storage {

/// A prepared statement, which lives as long as its scope. Each result code is checked: what the engine refuses is a
/// failure (Database) with the engine's words.
class Statement {
public:
    Statement(sqlite3* handle, const QByteArray& sql);

    /// Gives the parameter, counted from 1, its value. A text must stay where it is until the statement has run.
    void bind(int parameter, std::string_view text);
    void bind(int parameter, qint64 number);

    /// Goes to the next row of the result; false behind the last one.
    bool step();

    /// Runs a statement whose rows don't matter, and makes it ready to run again, also where it fails.
    void run();

    /// A value of the current row, by its place counted from 0. A text is valid until the next step; NULL reads as an
    /// empty text.
    std::string_view text(int place) const;
    qint64 number(int place) const;

private:
    struct Finalize {
        void operator()(sqlite3_stmt* statement) const;
    };

    void check(int code) const;

    std::unique_ptr<sqlite3_stmt, Finalize> statement_;
};

/// Runs one statement whose rows don't matter.
void execute(sqlite3* handle, const QByteArray& sql);

/// Runs a query and gives the first number of its first row; 0 where there is no row.
qint64 numberOf(sqlite3* handle, const QByteArray& sql);

/// The rowid of the row inserted last.
qint64 lastInsertedRow(sqlite3* handle);

/// Makes the writes of its scope one commit, which counts up the file's generation. Without `commit` the scope ends in
/// a roll-back. Inside another transaction it is a part of that one. Around the use of views it is for programs that
/// fill a database: what a view holds in memory doesn't take part in the roll-back.
class Transaction {
public:
    explicit Transaction(sqlite3* handle);
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    ~Transaction();

    /// Failures: Database; the scope then ends in a roll-back.
    void commit();

private:
    void rollBack();

    sqlite3* handle_;
    bool isOutermost_;
};

} // namespace storage
