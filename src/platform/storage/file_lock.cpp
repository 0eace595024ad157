// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/file_lock.h"

#include <QFile>

#include <fcntl.h>
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

} // namespace

FileLock::FileLock(const QString& path)
    : file_(::open(QFile::encodeName(path).constData(), O_RDWR | O_CLOEXEC))
{
    struct ::flock bytes = engineBytes(F_WRLCK);
    isHeld_ = file_ >= 0 && ::fcntl(file_, F_OFD_SETLK, &bytes) == 0;
}

FileLock::~FileLock()
{
    if (file_ >= 0)
        ::close(file_);
}

bool isInUse(const QString& path)
{
    const int file = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return false;
    struct ::flock bytes = engineBytes(F_RDLCK);
    const bool isTold = ::fcntl(file, F_OFD_GETLK, &bytes) == 0;
    ::close(file);
    return isTold && bytes.l_type != F_UNLCK;
}

} // namespace storage
