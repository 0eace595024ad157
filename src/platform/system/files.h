// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace sys {

// Single steps on files and folders. What the system refuses is a `RuntimeFailure` of kind `File`, with path and
// reason; a step that fails has changed nothing.

/// Makes a folder that its user alone can enter (0700), and those above it that are missing. One that is there stays as
/// it is.
void makePrivateFolder(const QString& path);

/// Copies a file into a new one that its user alone can read and write (0600), and that is on the disk when the call
/// returns. There must be none under that name yet.
void copyFile(const QString& source, const QString& target);

/// Gives the contents of a file a second name, under which they stay when the first one is given to another file: by a
/// link, which takes no room, and where the file system has none there by a copy, whole or none. There must be no file
/// under that name yet.
void keepFile(const QString& source, const QString& target);

/// Gives a file another name on the same file system, in one step; a file that has it loses it.
void renameFile(const QString& from, const QString& to);

/// Removes a file; one that isn't there is no failure.
void removeFile(const QString& path);

/// Puts a folder in place of another one, in one step, and gives that one the name of the first. Where the file system
/// can't, there is a moment with none.
void exchangeFolders(const QString& one, const QString& other);

/// Makes the names in a folder outlast a power cut.
void syncFolder(const QString& path);

/// Whether both are names of one file.
bool isSameFile(const QString& one, const QString& other);

/// Whether a file may lie where this user has no right to look.
bool isOutOfSight(const QString& path);

/// The bytes that are free for this user where the folder lies.
qint64 freeSpace(const QString& folder);

/// Keeps other runs out while it lives, those of other programs too that know the file, which is made where it is
/// missing and stays; or a folder, which is there. The end of the process gives it up in any case.
class RunLock {
public:
    enum class On { File, Folder };

    explicit RunLock(const QString& path, On what = On::File);
    RunLock(const RunLock&) = delete;
    RunLock& operator=(const RunLock&) = delete;
    ~RunLock();

    bool isHeld() const { return isHeld_; }

private:
    int file_;
    bool isHeld_;
};

} // namespace sys
