// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace storage {

/// Keeps other processes out of a database file while it lives, on the bytes that the engine locks. Unlike the engine's
/// own lock, it survives that the same file is opened and closed meanwhile.
class FileLock {
public:
    explicit FileLock(const QString& path);
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;
    ~FileLock();

    /// False where another process has the file open, and where it can't be written.
    bool isHeld() const { return isHeld_; }

private:
    int file_;
    bool isHeld_;
};

/// Whether another process holds the database file for itself.
bool isInUse(const QString& path);

} // namespace storage
