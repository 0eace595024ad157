// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Open files and folders; for the sources of this folder alone.

#include "platform/system/kind.h"
#include "platform/values/failure.h"

#include <cerrno>
#include <filesystem>
#include <string>
#include <vector>

#include <sys/stat.h>

namespace sys {

/// An open file or folder.
class Handle {
public:
    explicit Handle(int number)
        : number_(number)
    {
    }
    Handle(Handle&& other) noexcept
        : number_(other.number_)
    {
        other.number_ = -1;
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    Handle& operator=(Handle&&) = delete;
    ~Handle();

    bool isOpen() const { return number_ >= 0; }
    int number() const { return number_; }

private:
    int number_;
};

QString textOf(const std::filesystem::path& path);
std::filesystem::path pathOf(const QString& text);

/// The failure (File) that tells what was attempted, on what, and the system's reason.
values::RuntimeFailure refused(const char* attempt, const std::filesystem::path& path, int reason = errno);

/// Opens a folder by its path, through links; and one in an open folder, never through a link.
Handle openedFolder(const std::filesystem::path& path);
Handle openedFolderIn(const Handle& folder, const char* name);

/// What a mode tells of an entry.
Kind kindOf(mode_t mode);

/// An entry of a folder by its name, and what `lstat` tells of its kind.
struct Entry {
    std::string name;
    mode_t mode;
};

/// All entries of an open folder, in the order of their names. Failures: File, on `path`.
std::vector<Entry> entriesOf(const Handle& folder, const std::filesystem::path& path);

/// Writes all bytes of a file of an open folder into an open one; `source` and `target` are theirs in a failure's
/// words.
void copyBytes(const Handle& folder, const char* name, const std::filesystem::path& source, const Handle& copy,
    const std::filesystem::path& target);

/// Makes the names in a folder outlast a power cut. Some file systems have no such operation for folders and say so.
void flushFolder(const Handle& folder, const std::filesystem::path& path);

} // namespace sys
