// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/text_file.h"

#include "platform/values/failure.h"

#include <unistd.h>

namespace {

constexpr std::size_t PieceSize = std::size_t{1} << 20;

} // namespace

TextFile::TextFile(const QString& path)
    : file_(path)
{
    if (!file_.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered,
            QFileDevice::ReadOwner | QFileDevice::WriteOwner))
        refuse(file_.errorString());
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
    if (::fsync(file_.handle()) != 0)
        refuse(qt_error_string());
    file_.close();
}

void TextFile::flush()
{
    const auto count = static_cast<qint64>(pending_.size());
    if (file_.write(pending_.data(), count) != count)
        refuse(file_.errorString());
    pending_.clear();
}

void TextFile::refuse(const QString& reason) const
{
    throw values::RuntimeFailure(
        values::FailureKind::File, QStringLiteral("writing %1: %2").arg(file_.fileName(), reason));
}
