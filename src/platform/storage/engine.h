// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

struct sqlite3;

namespace storage {

struct CloseHandle {
    void operator()(sqlite3* handle) const;
};

/// An open database file of the engine.
using Handle = std::unique_ptr<sqlite3, CloseHandle>;

enum class Access { ReadOnly, ReadWrite };

/// Opens an existing file under its key and reads from it, which proves the key. Never makes a file. Failures:
/// Database.
Handle openFile(const QString& path, const QByteArray& key, Access access);

/// Throws the failure (Database) for a result code: the engine's words and, for an input or output error, the system's.
[[noreturn]] void throwEngineFailure(sqlite3* handle, int code);

} // namespace storage
