// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/files.h"

#include "platform/system/file_handle.h"

#include <QFileInfo>

#include <fcntl.h>
#include <stdio.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace sys {

namespace fs = std::filesystem;

namespace {

constexpr const char* PartSuffix = ".part";

bool isFolder(const fs::path& path)
{
    std::error_code unknown; // where the way there can't be looked at, the next step says so
    return fs::is_directory(path, unknown);
}

void makeFolders(const fs::path& path)
{
    if (isFolder(path))
        return;
    if (path.has_parent_path() && path.parent_path() != path)
        makeFolders(path.parent_path());
    if (::mkdir(path.c_str(), S_IRWXU) != 0 && !(errno == EEXIST && isFolder(path)))
        throw refused("making the folder", path);
}

void fill(const fs::path& source, const fs::path& target)
{
    const Handle copy(::open(target.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!copy.isOpen())
        throw refused("writing", target);
    try {
        copyBytes(source, copy, target);
        if (::fsync(copy.number()) != 0)
            throw refused("writing", target);
    } catch (...) {
        ::unlink(target.c_str());
        throw;
    }
}

// Another file system, one without links, or one that has enough of them.
bool hasNoLink(int reason)
{
    return reason == EXDEV || reason == EPERM || reason == ENOTSUP || reason == ENOSYS || reason == EMLINK;
}

// The copy has its name only once it is whole. A part that a killed run has left is in the way of nobody else.
void copyBeside(const fs::path& source, const fs::path& target)
{
    fs::path part = target;
    part += PartSuffix;
    ::unlink(part.c_str());
    fill(source, part);
    if (::renameat2(AT_FDCWD, part.c_str(), AT_FDCWD, target.c_str(), 0) == 0)
        return;
    const int reason = errno;
    ::unlink(part.c_str());
    throw refused("naming", target, reason);
}

struct Identity {
    dev_t device;
    ino_t number;
    bool isThere;
};

int openedToLock(const fs::path& path, RunLock::On what)
{
    if (what == RunLock::On::Folder)
        return ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    return ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
}

Identity identityOf(const QString& path)
{
    struct ::stat found { };
    const bool isThere = !path.isEmpty() && ::stat(pathOf(path).c_str(), &found) == 0;
    return {found.st_dev, found.st_ino, isThere};
}

} // namespace

void makePrivateFolder(const QString& path)
{
    makeFolders(pathOf(path));
}

void copyFile(const QString& source, const QString& target)
{
    fill(pathOf(source), pathOf(target));
}

void keepFile(const QString& source, const QString& target)
{
    const fs::path from = pathOf(source);
    const fs::path to = pathOf(target);
    if (::link(from.c_str(), to.c_str()) == 0)
        return;
    if (!hasNoLink(errno))
        throw refused("keeping", from);
    copyBeside(from, to);
}

void renameFile(const QString& from, const QString& to)
{
    if (::rename(pathOf(from).c_str(), pathOf(to).c_str()) != 0)
        throw refused("naming", pathOf(to));
}

void removeFile(const QString& path)
{
    if (::unlink(pathOf(path).c_str()) != 0 && errno != ENOENT)
        throw refused("removing", pathOf(path));
}

void exchangeFolders(const QString& one, const QString& other)
{
    const fs::path first = pathOf(one);
    const fs::path second = pathOf(other);
    if (::renameat2(AT_FDCWD, first.c_str(), AT_FDCWD, second.c_str(), RENAME_EXCHANGE) == 0)
        return;
    if (errno != EINVAL && errno != ENOSYS && errno != ENOTSUP)
        throw refused("replacing", second);
    const QString aside = other + QLatin1String(PartSuffix);
    renameFile(other, aside);
    try {
        renameFile(one, other);
    } catch (...) {
        renameFile(aside, other);
        throw;
    }
    renameFile(aside, one);
}

void syncFolder(const QString& path)
{
    flushFolder(pathOf(path));
}

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

qint64 freeSpace(const QString& folder)
{
    struct ::statvfs found { };
    if (::statvfs(pathOf(folder).c_str(), &found) != 0)
        throw refused("looking for room in", pathOf(folder));
    return static_cast<qint64>(found.f_bavail) * static_cast<qint64>(found.f_frsize);
}

RunLock::RunLock(const QString& path, On what)
    : file_(openedToLock(pathOf(path), what))
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
