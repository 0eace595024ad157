// SPDX-License-Identifier: GPL-3.0-or-later
// These stand before the system's own, for the libraries too.
#include "support/disk.h"

#include <QRegularExpression>

#include <cerrno>
#include <cstdio>
#include <filesystem>

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

QRegularExpression refused("never");
int reasonOfRefusal = 0;
int callsLeft = -1;

void endWhereAsked()
{
    if (callsLeft > 0 && --callsLeft == 0)
        _exit(Disk::Ended);
}

QString nameOf(const std::filesystem::path& path)
{
    return QString::fromStdString(path.filename());
}

template <class... Arguments>
int call(const QString& told, long number, Arguments... arguments)
{
    endWhereAsked();
    Disk::told.append(told);
    if (refused.match(told).capturedStart() != 0)
        return static_cast<int>(::syscall(number, arguments...));
    errno = reasonOfRefusal;
    return -1;
}

} // namespace

void Disk::refuse(const QString& calls, int reason)
{
    refused.setPattern(calls);
    reasonOfRefusal = reason;
}

void Disk::endAt(int call)
{
    callsLeft = call;
}

int fsync(int file)
{
    std::error_code unknown;
    const auto path = std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(file), unknown);
    return call("sync " + nameOf(path), SYS_fsync, file);
}

int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept
{
    if (flags != 0) // a file that had no name yet
        return static_cast<int>(::syscall(SYS_linkat, fromFolder, from, toFolder, to, flags));
    return call("link " + nameOf(from) + ' ' + nameOf(to), SYS_linkat, fromFolder, from, toFolder, to, flags);
}

int rename(const char* from, const char* to) noexcept
{
    return renameat2(AT_FDCWD, from, AT_FDCWD, to, 0);
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) noexcept
{
    const QString told = (flags & RENAME_EXCHANGE ? "exchange " : "name ") + nameOf(from) + ' ' + nameOf(to);
    return call(told, SYS_renameat2, fromFolder, from, toFolder, to, flags);
}

// What isn't told, for it is too much of it.

ssize_t write(int file, const void* bytes, std::size_t size)
{
    endWhereAsked();
    return ::syscall(SYS_write, file, bytes, size);
}

ssize_t pwrite64(int file, const void* bytes, std::size_t size, off64_t at)
{
    endWhereAsked();
    return ::syscall(SYS_pwrite64, file, bytes, size, at);
}

ssize_t pwrite(int file, const void* bytes, std::size_t size, off_t at)
{
    return pwrite64(file, bytes, size, at);
}

int ftruncate64(int file, off64_t size) noexcept
{
    endWhereAsked();
    return static_cast<int>(::syscall(SYS_ftruncate, file, size));
}

int ftruncate(int file, off_t size) noexcept
{
    return ftruncate64(file, size);
}

int unlinkat(int folder, const char* name, int flags) noexcept
{
    endWhereAsked();
    return static_cast<int>(::syscall(SYS_unlinkat, folder, name, flags));
}

int unlink(const char* name) noexcept
{
    return unlinkat(AT_FDCWD, name, 0);
}
