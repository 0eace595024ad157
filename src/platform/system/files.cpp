// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/files.h"

#include "platform/system/file_handle.h"

#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace sys {

namespace {

struct Identity {
    dev_t device;
    ino_t number;
    bool isThere;
};

Identity identityOf(const QString& path)
{
    struct ::stat found { };
    const bool isThere = !path.isEmpty() && ::stat(pathOf(path).c_str(), &found) == 0;
    return {found.st_dev, found.st_ino, isThere};
}

} // namespace

bool isSameFile(const QString& one, const QString& other)
{
    const Identity first = identityOf(one);
    const Identity second = identityOf(other);
    return first.isThere && second.isThere && first.device == second.device && first.number == second.number;
}

bool isOutOfSight(const QString& path)
{
    const QFileInfo folder(QFileInfo(path).path());
    return folder.isDir() && !folder.isExecutable();
}

RunLock::RunLock(const Folder& folder, const QString& file)
    : RunLock(::openat(folder.descriptor(), QFile::encodeName(file).constData(),
                  O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR),
        folder.pathOf(file))
{
}

// A lock belongs to one opening of the folder.
RunLock::RunLock(const Folder& folder)
    : RunLock(::openat(folder.descriptor(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC), folder.path())
{
}

RunLock::RunLock(int file, const QString& path)
    : file_(file)
    , isHeld_(file_ >= 0 && ::flock(file_, LOCK_EX | LOCK_NB) == 0)
{
    if (file_ < 0)
        throw refused("writing", pathOf(path));
}

RunLock::~RunLock()
{
    ::close(file_);
}

} // namespace sys
