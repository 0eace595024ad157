// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/file_reader.h"

#include "platform/storage/file_lock.h"
#include "platform/storage/schema.h"
#include "platform/storage/sql.h"
#include "platform/storage/sqlcipher.h"
#include "platform/storage/statement.h"

using values::FailureKind;

namespace storage {

namespace {

JournalBeside journalOf(const QString& path, const FileKey& key, FileReader::Locks locks)
{
    if (locks == FileReader::Locks::Respected && isInUse(path))
        throw FileInUse(path);
    return journalBeside(path, key);
}

} // namespace

FileInUse::FileInUse(const QString& path)
    : RuntimeFailure(FailureKind::Database, path + QStringLiteral(" is in use by another program"))
{
}

FileReader::FileReader(const QString& path, const FileKey& key, Locks locks)
    : journal_(journalOf(path, key, locks))
    , handle_(opened(path, key, locks))
{
    // What `readThrough` has decrypted the rows find again: 64 MiB are a household ten times as large as any.
    execute(handle_.get(), "PRAGMA cache_size = -65536");
    // The shared lock stays until the end.
    execute(handle_.get(), "BEGIN");
    readOnce(handle_.get());
}

Handle FileReader::opened(const QString& path, const FileKey& key, Locks locks)
{
    if (journal_ == JournalBeside::Foreign)
        return openFile(path, key, Access::AsItLies);
    if (journal_ == JournalBeside::Own)
        return openFile(copy_.emplace(path).file(), key, Access::ReadWrite);
    return openFile(path, key, locks == Locks::Passed ? Access::AsItLies : Access::ReadOnly);
}

void FileReader::readThrough()
{
    proveIntact(handle_.get());
}

Snapshot FileReader::rows(const TableDefinition& table)
{
    Snapshot rows(table);
    const int columns = static_cast<int>(table.columns.size());
    Statement select(handle_.get(), sql::selectRows(table));
    while (select.step())
        for (int column = 1; column <= columns; ++column)
            rows.append(select.text(column));
    return rows;
}

qint64 FileReader::lastNumber(const TableDefinition& table)
{
    Statement select(handle_.get(), "SELECT seq FROM sqlite_sequence WHERE name = ?");
    select.bind(1, table.name);
    return select.step() ? select.number(0) : 0;
}

} // namespace storage
