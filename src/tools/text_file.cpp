// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/text_file.h"

#include "platform/values/failure.h"
#include "platform/values/file_name.h"
#include "tools/system_words.h"

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::size_t PieceSize = std::size_t{1} << 20;

} // namespace

TextFile::TextFile(const QString& path)
    : path_(path)
    , file_(::open(values::bytesOfName(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR))
{
    if (file_ < 0)
        refuse();
}

TextFile::~TextFile()
{
    if (file_ >= 0)
        ::close(file_);
}

void TextFile::write(std::string_view bytes)
{
    pending_.append(bytes);
    if (pending_.size() >= PieceSize)
        flush();
}

void TextFile::finish()
{
    flush();
    if (::fsync(file_) != 0 || ::close(std::exchange(file_, -1)) != 0)
        refuse();
}

// The system may take a part of it; the next call tells why it takes no more.
void TextFile::flush()
{
    for (std::string_view rest = pending_; !rest.empty();) {
        const ssize_t written = TEMP_FAILURE_RETRY(::write(file_, rest.data(), rest.size()));
        if (written < 0)
            refuse();
        rest.remove_prefix(static_cast<std::size_t>(written));
    }
    pending_.clear();
}

void TextFile::refuse() const
{
    throw values::RuntimeFailure(
        values::FailureKind::File, QStringLiteral("writing %1: %2").arg(path_, system_Words(errno)));
}
