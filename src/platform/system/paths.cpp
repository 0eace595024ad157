// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/paths.h"

#include "platform/system/file_handle.h"
#include "platform/values/file_name.h"

#include <cstdlib>
#include <memory>

#include <sys/stat.h>
#include <unistd.h>

namespace sys {

Kind kindOf(const QString& path)
{
    const QByteArray name = values::bytesOfName(path);
    struct ::stat found { };
    if (::stat(name.constData(), &found) == 0)
        return kindOf(found.st_mode);
    return ::lstat(name.constData(), &found) == 0 ? Kind::Other : Kind::Nothing;
}

bool isReadable(const QString& path)
{
    return ::euidaccess(values::bytesOfName(path).constData(), R_OK) == 0;
}

QString absolutePath(const QString& path)
{
    return textOf(pathOf(path));
}

QString realPath(const QString& path)
{
    const std::unique_ptr<char, decltype(&std::free)> found(
        ::realpath(values::bytesOfName(path).constData(), nullptr), &std::free);
    return found ? values::textOfName(found.get()) : QString();
}

} // namespace sys
