// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/storage/engine.h"
#include "platform/storage/journal.h"
#include "platform/storage/snapshot.h"
#include "platform/values/failure.h"

#include <optional>

namespace storage {

/// The Database failure of a reader that finds a file in which another process may be writing.
class FileInUse : public values::RuntimeFailure {
public:
    explicit FileInUse(const QString& path);
};

/// A database file as it lies, read and never written: the file, its folder and its journal stay as they are. Nobody
/// stores anything in it while the object lives. Where a journal has to be played back first, that is done on a copy.
class FileReader {
public:
    enum class Locks {
        Respected, ///< a file that another process holds for itself is refused
        Passed, ///< for a file that this process keeps others out of
    };

    /// Opens the file. Failures: FileInUse; Database, with the reason, as at `Connection::open`.
    FileReader(const QString& path, const FileKey& key, Locks locks = Locks::Respected);

    /// Reads it to its last page: each page's checksum, its structure. Failures: Database.
    void readThrough();

    /// All rows of a table, in the order in which they were stored. Failures: Database, where the file lacks the table
    /// or one of its columns, or is damaged.
    Snapshot rows(const TableDefinition& table);

    /// The number that a table has given last, to a row that may have gone since: none is given twice. 0 where it has
    /// given none. Failures: Database.
    qint64 lastNumber(const TableDefinition& table);

    /// The number of the last transaction stored in the file. Failures: Database.
    qint64 generation() const { return generationOf(handle_.get()); }

    /// What lay beside the file.
    JournalBeside journal() const { return journal_; }

private:
    Handle opened(const QString& path, const FileKey& key, Locks locks);

    JournalBeside journal_;
    std::optional<CopyWithJournal> copy_; // outlives the handle
    Handle handle_;
};

} // namespace storage
