// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/data_store.h"
#include "platform/storage/sql.h"

#include <benchmark/benchmark.h>
#include <sqlcipher/sqlite3.h>

#include <cstdlib>

/// The engine without anything in between.
class BareDatabase {
public:
    explicit BareDatabase(const QString& path)
    {
        check(sqlite3_open_v2(path.toUtf8(), &handle_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr));
        const QByteArray key = databaseKey().passphrase;
        check(sqlite3_key(handle_, key.constData(), static_cast<int>(key.size())));
        run("PRAGMA cipher_compatibility = 3");
        run("SELECT count(*) FROM sqlite_master");
        run("PRAGMA journal_mode=TRUNCATE; PRAGMA locking_mode=EXCLUSIVE; PRAGMA synchronous=FULL;"
            "PRAGMA cache_size=-4096; PRAGMA temp_store=MEMORY; BEGIN EXCLUSIVE; COMMIT");
    }
    BareDatabase(const BareDatabase&) = delete;
    BareDatabase& operator=(const BareDatabase&) = delete;
    ~BareDatabase() { sqlite3_close(handle_); }

    void run(const QByteArray& sql) { check(sqlite3_exec(handle_, sql.constData(), nullptr, nullptr, nullptr)); }

    sqlite3_stmt* prepare(const QByteArray& sql)
    {
        sqlite3_stmt* statement = nullptr;
        check(sqlite3_prepare_v2(handle_, sql, -1, &statement, nullptr));
        return statement;
    }

    static void check(int code)
    {
        if (code != SQLITE_OK)
            std::abort();
    }

private:
    sqlite3* handle_ = nullptr;
};

inline void lookAt(const char* cell)
{
    benchmark::DoNotOptimize(cell);
}

/// Hands each cell to `use`.
void readTable(BareDatabase& database, const storage::TableDefinition& definition, auto use)
{
    sqlite3_stmt* select = database.prepare(storage::sql::selectRows(definition));
    const int columns = sqlite3_column_count(select);
    while (sqlite3_step(select) == SQLITE_ROW) {
        for (int column = 0; column < columns; ++column)
            use(reinterpret_cast<const char*>(sqlite3_column_text(select, column)));
    }
    BareDatabase::check(sqlite3_finalize(select));
}
