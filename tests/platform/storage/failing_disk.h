// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/storage/sqlcipher.h"

#include <limits>
#include <map>

/// The disk as the engine sees it, for the life of the object: from a certain change on every write, sync, cut and
/// removal fails.
class FailingDisk {
public:
    static constexpr int never = std::numeric_limits<int>::max();

    FailingDisk()
    {
        disk_ = *real_;
        disk_.zName = "failing";
        disk_.xOpen = open;
        disk_.xDelete = remove;
        sqlite3_vfs_register(&disk_, 1);
    }
    FailingDisk(const FailingDisk&) = delete;
    FailingDisk& operator=(const FailingDisk&) = delete;
    ~FailingDisk()
    {
        sqlite3_vfs_unregister(&disk_);
        failFrom(never);
    }

    /// So many changes succeed from now on; and whether one has failed since.
    static void failFrom(int changes) { left_ = changes; }
    static bool hasFailed() { return left_ < 0; }

private:
    struct Methods : sqlite3_io_methods {
        const sqlite3_io_methods* real;
    };

    static bool fails()
    {
        if (left_ != never && left_ >= 0)
            --left_;
        return hasFailed();
    }

    static const sqlite3_io_methods& realOf(sqlite3_file* file)
    {
        return *static_cast<const Methods*>(file->pMethods)->real;
    }

    static int open(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* given)
    {
        static std::map<const sqlite3_io_methods*, Methods> known;
        const int code = real_->xOpen(real_, name, file, flags, given);
        if (!file->pMethods)
            return code;
        Methods& methods = known[file->pMethods];
        static_cast<sqlite3_io_methods&>(methods) = *file->pMethods;
        methods.real = file->pMethods;
        methods.xWrite = [](sqlite3_file* f, const void* bytes, int count, sqlite3_int64 at) {
            return fails() ? SQLITE_FULL : realOf(f).xWrite(f, bytes, count, at);
        };
        methods.xTruncate = [](sqlite3_file* f, sqlite3_int64 size) {
            return fails() ? SQLITE_IOERR_TRUNCATE : realOf(f).xTruncate(f, size);
        };
        methods.xSync = [](sqlite3_file* f, int how) { return fails() ? SQLITE_IOERR_FSYNC : realOf(f).xSync(f, how); };
        file->pMethods = &methods;
        return code;
    }

    static int remove(sqlite3_vfs*, const char* name, int syncFolder)
    {
        return fails() ? SQLITE_IOERR_DELETE : real_->xDelete(real_, name, syncFolder);
    }

    inline static sqlite3_vfs* const real_ = sqlite3_vfs_find(nullptr);
    inline static int left_ = never;
    sqlite3_vfs disk_;
};
