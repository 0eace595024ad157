// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/file_handle.h"

#include "platform/system/failures.h"
#include "platform/values/file_name.h"

#include <QDir>

#include <algorithm>
#include <memory>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

namespace sys {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t BlockSize = std::size_t{1} << 20;

void write(const Handle& file, const char* bytes, std::size_t count, const fs::path& path)
{
    while (count > 0) {
        const ssize_t written = TEMP_FAILURE_RETRY(::write(file.number(), bytes, count));
        if (written < 0)
            throw refused("writing", path);
        bytes += written;
        count -= static_cast<std::size_t>(written);
    }
}

} // namespace

Handle::~Handle()
{
    if (isOpen())
        ::close(number_);
}

QString textOf(const fs::path& path)
{
    return values::textOfName(path.c_str());
}

fs::path pathOf(const QString& text)
{
    const fs::path path = values::bytesOfName(QDir::cleanPath(text)).toStdString();
    std::error_code failure;
    fs::path absolute = fs::absolute(path, failure);
    if (path.empty() || failure)
        throw refused("finding", path, path.empty() ? ENOENT : failure.value());
    return absolute;
}

values::RuntimeFailure refused(const char* attempt, const fs::path& path, int reason)
{
    return refusal(values::FailureKind::File, QLatin1String(attempt) + u' ' + textOf(path), reason);
}

Handle openedFolder(const fs::path& path)
{
    return Handle(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

Handle openedFolderIn(const Handle& folder, const char* name)
{
    return Handle(::openat(folder.number(), name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
}

Kind kindOf(mode_t mode)
{
    return S_ISREG(mode) ? Kind::File : S_ISDIR(mode) ? Kind::Folder : S_ISLNK(mode) ? Kind::Link : Kind::Other;
}

std::vector<Entry> entriesOf(const Handle& folder, const fs::path& path)
{
    // Reading moves a place in the open folder, so it is opened once more.
    const int again = ::openat(folder.number(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const std::unique_ptr<DIR, int (*)(DIR*)> reading(again < 0 ? nullptr : ::fdopendir(again), ::closedir);
    if (!reading)
        throw refused("reading the folder", path);
    std::vector<Entry> entries;
    for (errno = 0; const dirent* found = ::readdir(reading.get()); errno = 0) {
        struct ::stat status { };
        const std::string name = found->d_name;
        if (name != "." && name != ".." && ::fstatat(folder.number(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0)
            entries.push_back({name, status.st_mode});
    }
    if (errno != 0)
        throw refused("reading the folder", path);
    std::ranges::sort(entries, {}, &Entry::name);
    return entries;
}

void copyBytes(
    const Handle& folder, const char* name, const fs::path& source, const Handle& copy, const fs::path& target)
{
    const Handle file(::openat(folder.number(), name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (!file.isOpen())
        throw refused("reading", source);
    std::vector<char> block(BlockSize);
    ssize_t count = 0;
    while ((count = TEMP_FAILURE_RETRY(::read(file.number(), block.data(), block.size()))) > 0)
        write(copy, block.data(), static_cast<std::size_t>(count), target);
    if (count < 0)
        throw refused("reading", source);
}

void flushFolder(const Handle& folder, const fs::path& path)
{
    if (::fsync(folder.number()) != 0 && errno != EINVAL && errno != ENOTSUP)
        throw refused("flushing", path);
}

} // namespace sys
