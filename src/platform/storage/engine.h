// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

struct sqlite3;

namespace storage {

/// Closes an open file, and the folder that it was reached through.
struct CloseHandle {
    int folder = -1;
    void operator()(sqlite3* handle) const;
};

/// An open database file of the engine.
using Handle = std::unique_ptr<sqlite3, CloseHandle>;

/// What opens a file: a passphrase, which the engine turns into a key by a slow derivation with the file's salt. Of one
/// salt that key may be known, which then is used at once. Salt and key are given as hexadecimal digits.
struct FileKey {
    FileKey(const QByteArray& words = {}, const QByteArray& salt = {}, const QByteArray& keyWithSalt = {})
        : passphrase(words)
        , knownSalt(salt)
        , knownKey(keyWithSalt)
    {
    }

    QByteArray passphrase;
    QByteArray knownSalt;
    QByteArray knownKey;
};

enum class Access {
    ReadOnly,
    ReadWrite,
    AsItLies, ///< for reading; a journal beside the file and the locks of others don't count
};

/// Opens an existing file under its key and reads from it, which proves the key. Never makes a file. Its path may be as
/// long as the system takes it. Failures: Database.
Handle openFile(const QString& path, const FileKey& key, Access access);

/// The number of the last transaction stored in the file. Failures: Database.
qint64 generationOf(sqlite3* handle);

/// Reads from the file. Where a write and its roll-back have both failed, this takes the write back. Failures:
/// Database.
void readOnce(sqlite3* handle);

/// Which file it is, whatever its name.
struct FileIdentity {
    quint64 device = 0;
    quint64 number = 0;

    bool operator==(const FileIdentity&) const = default;
};

/// The file that is open. Failures: Database, where it has left its name already.
FileIdentity identityOf(sqlite3* handle);

/// Whether that file lies under that path.
bool liesAt(FileIdentity file, const QString& path);

/// Reads the file to its last page: each page's checksum, its structure. Failures: Database, where anything is not in
/// order.
void proveIntact(sqlite3* handle);

/// Throws the failure (Database) for a result code: the engine's words and, for an input or output error, the system's.
[[noreturn]] void throwEngineFailure(sqlite3* handle, int code);

} // namespace storage
