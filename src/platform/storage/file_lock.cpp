// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/file_lock.h"

#include "platform/values/file_name.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace storage {

namespace {

struct ::flock engineBytes(short type)
{
    struct ::flock bytes { };
    bytes.l_type = type;
    bytes.l_whence = SEEK_SET;
    bytes.l_start = 0x40000000;
    bytes.l_len = 512;
    return bytes;
}

// What else bears the name, a pipe or a device, may keep whoever opens it waiting.
int openedFile(const QString& path, int flags)
{
    const QByteArray name = values::bytesOfName(path);
    struct ::stat found { };
    if (::stat(name.constData(), &found) != 0 || !S_ISREG(found.st_mode))
        return -1;
    return ::open(name.constData(), flags | O_NONBLOCK | O_CLOEXEC);
}

} // namespace

FileLock::FileLock(const QString& path)
    : file_(openedFile(path, O_RDWR))
{
    struct ::flock bytes = engineBytes(F_WRLCK);
    isHeld_ = ::fcntl(file_, F_OFD_SETLK, &bytes) == 0; // no lock without a file
}

FileLock::~FileLock()
{
    if (file_ >= 0)
        ::close(file_);
}

bool isInUse(const QString& path)
{
    const int file = openedFile(path, O_RDONLY);
    if (file < 0)
        return false;
    struct ::flock bytes = engineBytes(F_RDLCK);
    const bool isKnown = ::fcntl(file, F_OFD_GETLK, &bytes) == 0;
    ::close(file);
    return isKnown && bytes.l_type != F_UNLCK;
}

} // namespace storage
