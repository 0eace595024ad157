// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/system/folder.h"

#include <QString>

namespace sys {

/// Whether both are names of one file.
bool isSameFile(const QString& one, const QString& other);

/// Whether a file may lie where this user has no right to look.
bool isOutOfSight(const QString& path);

/// Keeps other runs out while it lives, those of other programs too that know the file, which is made where it is
/// missing and stays; or a folder. The end of the process gives it up in any case. Failures: File.
class RunLock {
public:
    RunLock(const Folder& folder, const QString& file);
    explicit RunLock(const Folder& folder);
    RunLock(const RunLock&) = delete;
    RunLock& operator=(const RunLock&) = delete;
    ~RunLock();

    bool isHeld() const { return isHeld_; }

private:
    RunLock(int file, const QString& path);

    int file_;
    bool isHeld_;
};

} // namespace sys
