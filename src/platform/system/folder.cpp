// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/folder.h"

#include "platform/system/file_handle.h"
#include "platform/values/file_name.h"

#include <QFileInfo>

#include <fcntl.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace sys {

namespace fs = std::filesystem;

namespace {

const QString PartSuffix = QStringLiteral(".part");
constexpr qint64 NanosecondsOfASecond = 1'000'000'000;

// The name as the system takes it, for the length of a call.
class Name {
public:
    explicit Name(const QString& name)
        : bytes_(values::bytesOfName(name))
    {
    }
    operator const char*() const { return bytes_.constData(); } // NOLINT: it is nothing else

private:
    QByteArray bytes_;
};

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

// Another file system, one without links, or one that has enough of them.
bool hasNoLink(int reason)
{
    return reason == EXDEV || reason == EPERM || reason == ENOTSUP || reason == ENOSYS || reason == EMLINK;
}

qint64 nanoseconds(const timespec& time)
{
    return static_cast<qint64>(time.tv_sec) * NanosecondsOfASecond + time.tv_nsec;
}

std::shared_ptr<const Handle> orRefused(Handle handle, const QString& path)
{
    if (!handle.isOpen())
        throw refused("opening the folder", pathOf(path));
    return std::make_shared<const Handle>(std::move(handle));
}

} // namespace

Folder::Folder(std::shared_ptr<const Handle> handle, QString path)
    : handle_(std::move(handle))
    , path_(std::move(path))
{
}

Folder::Folder(const QString& path)
    : Folder(orRefused(openedFolder(sys::pathOf(path)), path), path)
{
}

std::optional<Folder> Folder::found(const QString& path)
{
    Handle handle = openedFolder(sys::pathOf(path));
    if (!handle.isOpen() && errno == ENOENT)
        return std::nullopt;
    return Folder(orRefused(std::move(handle), path), path);
}

Folder Folder::made(const QString& path)
{
    makeFolders(sys::pathOf(path));
    return Folder(path);
}

Folder Folder::entered(const QString& name) const
{
    return {orRefused(openedFolderIn(*handle_, Name(name)), pathOf(name)), pathOf(name)};
}

Folder Folder::madeEntered(const QString& name) const
{
    if (::mkdirat(descriptor(), Name(name), S_IRWXU) != 0 && errno != EEXIST)
        throw refused("making the folder", sys::pathOf(pathOf(name)));
    return entered(name);
}

// Where others may write, one of them may be quick enough to put a folder of his own in its place.
Folder Folder::madeNew(const QString& beginning) const
{
    QByteArray path = values::bytesOfName(wayTo(beginning)) + "XXXXXX";
    if (::mkdtemp(path.data()) == nullptr)
        throw refused("making a folder in", sys::pathOf(path_));
    Folder folder = entered(values::textOfName(path.mid(path.lastIndexOf('/') + 1)));
    struct ::stat owner { };
    if (::fstat(folder.descriptor(), &owner) != 0 || owner.st_uid != ::geteuid())
        throw refused("making a folder in", sys::pathOf(path_), EPERM);
    return folder;
}

QString Folder::name() const
{
    return QFileInfo(path_).fileName();
}

QString Folder::way() const
{
    return QStringLiteral("/proc/self/fd/%1").arg(descriptor());
}

QStringList Folder::names() const
{
    QStringList names;
    for (const Entry& entry : entriesOf(*handle_, sys::pathOf(path_)))
        names.append(values::textOfName(entry.name.c_str()));
    return names;
}

std::optional<Folder::Status> Folder::look(const QString& name) const
{
    struct ::stat found { };
    if (::fstatat(descriptor(), Name(name), &found, AT_SYMLINK_NOFOLLOW) != 0) {
        if (errno != ENOENT)
            throw refused("looking at", sys::pathOf(pathOf(name)));
        return std::nullopt;
    }
    return Status{kindOf(found.st_mode), found.st_dev, found.st_ino, found.st_size, nanoseconds(found.st_mtim),
        nanoseconds(found.st_ctim)};
}

bool Folder::hasFile(const QString& name) const
{
    const std::optional<Status> found = look(name);
    return found && found->kind == Kind::File;
}

void Folder::fill(const Folder& source, const QString& name, const QString& part, const QString& as) const
{
    const fs::path target = sys::pathOf(pathOf(as));
    const Handle copy(::openat(descriptor(), Name(part), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!copy.isOpen())
        throw refused("writing", target);
    copyBytes(*source.handle_, Name(name), sys::pathOf(source.pathOf(name)), copy, target);
    if (::fsync(copy.number()) != 0)
        throw refused("writing", target);
}

// The copy has its name only once it is whole. A part that a killed run has left is in the way of nobody else.
void Folder::copy(const Folder& source, const QString& name, const QString& as) const
{
    const QString part = as + PartSuffix;
    removePart(as);
    try {
        fill(source, name, part, as);
        rename(part, as);
    } catch (...) {
        ::unlinkat(descriptor(), Name(part), 0);
        throw;
    }
}

void Folder::removePart(const QString& name) const
{
    remove(name + PartSuffix);
}

void Folder::keep(const Folder& source, const QString& name, const QString& as) const
{
    if (::linkat(source.descriptor(), Name(name), descriptor(), Name(as), 0) == 0)
        return;
    if (!hasNoLink(errno))
        throw refused("keeping", sys::pathOf(source.pathOf(name)));
    copy(source, name, as);
}

void Folder::rename(const QString& name, const QString& as) const
{
    if (::renameat2(descriptor(), Name(name), descriptor(), Name(as), 0) != 0)
        throw refused("naming", sys::pathOf(pathOf(as)));
}

void Folder::exchange(const QString& one, const QString& other) const
{
    if (::renameat2(descriptor(), Name(one), descriptor(), Name(other), RENAME_EXCHANGE) == 0)
        return;
    if (errno != EINVAL && errno != ENOSYS && errno != ENOTSUP)
        throw refused("replacing", sys::pathOf(pathOf(other)));
    const QString aside = other + PartSuffix;
    rename(other, aside);
    try {
        rename(one, other);
    } catch (...) {
        rename(aside, other);
        throw;
    }
    rename(aside, one);
}

void Folder::remove(const QString& name) const
{
    if (::unlinkat(descriptor(), Name(name), 0) != 0 && errno != ENOENT)
        throw refused("removing", sys::pathOf(pathOf(name)));
}

bool Folder::removeEmpty(const QString& name) const
{
    if (::unlinkat(descriptor(), Name(name), AT_REMOVEDIR) == 0)
        return true;
    if (errno != ENOTEMPTY && errno != EEXIST)
        throw refused("removing", sys::pathOf(pathOf(name)));
    return false;
}

void Folder::sync() const
{
    flushFolder(*handle_, sys::pathOf(path_));
}

qint64 Folder::freeSpace() const
{
    struct ::statvfs found { };
    if (::fstatvfs(descriptor(), &found) != 0)
        throw refused("looking for room in", sys::pathOf(path_));
    return static_cast<qint64>(found.f_bavail) * static_cast<qint64>(found.f_frsize);
}

int Folder::descriptor() const
{
    return handle_->number();
}

} // namespace sys
