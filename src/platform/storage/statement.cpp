// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/statement.h"

#include "platform/storage/engine.h"
#include "platform/storage/sqlcipher.h"

namespace storage {

void Statement::Finalize::operator()(sqlite3_stmt* statement) const
{
    sqlite3_finalize(statement);
}

Statement::Statement(sqlite3* handle, const QByteArray& sql)
{
    sqlite3_stmt* prepared = nullptr;
    const int code = sqlite3_prepare_v2(handle, sql.constData(), static_cast<int>(sql.size()) + 1, &prepared, nullptr);
    statement_.reset(prepared);
    if (code != SQLITE_OK)
        throwEngineFailure(handle, code);
}

void Statement::check(int code) const
{
    if (code != SQLITE_OK)
        throwEngineFailure(sqlite3_db_handle(statement_.get()), code);
}

void Statement::bind(int parameter, std::string_view text)
{
    // The engine would take a null pointer for NULL.
    const char* bytes = text.empty() ? "" : text.data();
    check(sqlite3_bind_text(statement_.get(), parameter, bytes, static_cast<int>(text.size()), SQLITE_STATIC));
}

void Statement::bind(int parameter, qint64 number)
{
    check(sqlite3_bind_int64(statement_.get(), parameter, number));
}

bool Statement::step()
{
    const int code = sqlite3_step(statement_.get());
    if (code == SQLITE_ROW)
        return true;
    check(code == SQLITE_DONE ? SQLITE_OK : code);
    return false;
}

void Statement::run()
{
    const int stepped = sqlite3_step(statement_.get());
    // The reset repeats the code of a step that failed, and the engine's words with it.
    const int code = sqlite3_reset(statement_.get());
    check(stepped == SQLITE_DONE || stepped == SQLITE_ROW ? code : stepped);
}

std::string_view Statement::text(int place) const
{
    // By way of the value, since each question to the statement costs as much as an answer.
    sqlite3_value* value = sqlite3_column_value(statement_.get(), place);
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return text ? std::string_view(text, static_cast<std::size_t>(sqlite3_value_bytes(value))) : std::string_view();
}

qint64 Statement::number(int place) const
{
    return sqlite3_column_int64(statement_.get(), place);
}

void execute(sqlite3* handle, const QByteArray& sql)
{
    Statement(handle, sql).run();
}

qint64 numberOf(sqlite3* handle, const QByteArray& sql)
{
    Statement query(handle, sql);
    return query.step() ? query.number(0) : 0;
}

qint64 lastInsertedRow(sqlite3* handle)
{
    return sqlite3_last_insert_rowid(handle);
}

Transaction::Transaction(sqlite3* handle)
    : handle_(handle)
    , isOutermost_(sqlite3_get_autocommit(handle) != 0)
{
    if (!isOutermost_)
        return;
    execute(handle_, "BEGIN IMMEDIATE");
    try {
        // By the generation a journal knows its file: see setForeignJournalAside.
        execute(handle_, "PRAGMA user_version = " + QByteArray::number(generationOf(handle_) + 1));
    } catch (...) {
        rollBack();
        throw;
    }
}

Transaction::~Transaction()
{
    if (isOutermost_)
        rollBack();
}

void Transaction::rollBack()
{
    // Some failures have rolled back by themselves; then nothing is left to do, and its refusal means nothing.
    if (sqlite3_get_autocommit(handle_) == 0)
        sqlite3_exec(handle_, "ROLLBACK", nullptr, nullptr, nullptr);
}

void Transaction::commit()
{
    if (isOutermost_)
        execute(handle_, "COMMIT");
}

} // namespace storage
