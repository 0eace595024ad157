// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/journal.h"

#include "platform/storage/engine.h"
#include "platform/storage/file_lock.h"
#include "platform/values/failure.h"
#include "platform/values/file_name.h"

#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <cstdio>
#include <filesystem>
#include <optional>

using values::FailureKind;
using values::RuntimeFailure;

namespace storage {

namespace {

const QString Suffix = QStringLiteral("-journal");

std::optional<qint64> generationIn(const QString& path, const FileKey& key, Access access)
{
    try {
        return generationOf(openFile(path, key, access).get());
    } catch (const RuntimeFailure&) {
        return std::nullopt;
    }
}

// What the file would be once the journal was played back.
std::optional<qint64> generationPlayedBack(const QString& file, const FileKey& key)
{
    const CopyWithJournal copy(file);
    return generationIn(copy.file(), key, Access::ReadWrite);
}

// Each transaction counts the generation up, and its journal holds the one before. So a file in the middle of that
// transaction has the one or the other. A file that can't be read is left to its journal.
bool isForeign(const QString& file, const FileKey& key)
{
    const std::optional<qint64> lies = generationIn(file, key, Access::AsItLies);
    if (!lies)
        return false;
    const std::optional<qint64> playedBack = generationPlayedBack(file, key);
    return playedBack && *lies != *playedBack && *lies != *playedBack + 1;
}

std::filesystem::path pathOf(const QString& name)
{
    return values::bytesOfName(name).toStdString();
}

// The file that the engine opens, under whose name it looks for the journal.
QString fileWithJournal(const QString& path)
{
    std::error_code isMissing;
    const std::filesystem::path file = std::filesystem::canonical(pathOf(path), isMissing);
    if (isMissing)
        return {};
    const QString name = values::textOfName(file.c_str());
    const std::uintmax_t size = std::filesystem::file_size(pathOf(name + Suffix), isMissing);
    return isMissing || size == 0 ? QString() : name;
}

bool isCopied(const QString& from, const QString& to)
{
    std::error_code failure;
    return std::filesystem::copy_file(pathOf(from), pathOf(to), failure);
}

} // namespace

// The folder lies in memory, since a journal is often left by a disk that was full.
CopyWithJournal::CopyWithJournal(const QString& file)
    : folder_(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + QStringLiteral("/journal-XXXXXX"))
{
    const QString real = fileWithJournal(file);
    if (!folder_.isValid() || !isCopied(real, this->file()) || !isCopied(real + Suffix, this->file() + Suffix))
        throw RuntimeFailure(FailureKind::Database, QStringLiteral("no room to try the journal of ") + file);
    QFile::setPermissions(this->file(), QFile::ReadOwner | QFile::WriteOwner);
}

JournalBeside journalBeside(const QString& path, const FileKey& key)
{
    const QString file = fileWithJournal(path);
    if (file.isEmpty())
        return JournalBeside::None;
    return isForeign(file, key) ? JournalBeside::Foreign : JournalBeside::Own;
}

void setForeignJournalAside(const QString& path, const FileKey& key)
{
    const QString file = fileWithJournal(path);
    if (file.isEmpty())
        return;
    const FileLock lock(file);
    if (!lock.isHeld() || !isForeign(file, key))
        return;
    std::error_code failure;
    std::filesystem::rename(pathOf(file + Suffix), pathOf(file + QStringLiteral("-foreign") + Suffix), failure);
    if (failure)
        throw RuntimeFailure(FailureKind::Database, QStringLiteral("a foreign journal lies beside ") + file);
}

} // namespace storage
