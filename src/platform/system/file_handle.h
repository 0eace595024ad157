// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Open files and folders; for the sources of this folder alone.

#include "platform/values/failure.h"

#include <cerrno>
#include <filesystem>

namespace sys {

/// An open file or folder.
class Handle {
public:
    explicit Handle(int number)
        : number_(number)
    {
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
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

/// Writes all bytes of a file into an open one, which is `target` in a failure's words.
void copyBytes(const std::filesystem::path& source, const Handle& copy, const std::filesystem::path& target);

/// Makes the names in a folder outlast a power cut. Some file systems have no such operation for folders and say so.
void flushFolder(const std::filesystem::path& path);

} // namespace sys
