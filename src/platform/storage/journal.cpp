// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/journal.h"

#include "platform/storage/engine.h"
#include "platform/storage/file_lock.h"
#include "platform/values/failure.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <cstdio>
#include <optional>

using values::FailureKind;
using values::RuntimeFailure;

namespace storage {

namespace {

const QString Suffix = QStringLiteral("-journal");

std::optional<qint64> generationIn(const QString& path, const QByteArray& key, Access access)
{
    try {
        return generationOf(openFile(path, key, access).get());
    } catch (const RuntimeFailure&) {
        return std::nullopt;
    }
}

// What the file would be once the journal was played back.
std::optional<qint64> generationPlayedBack(const QString& file, const QByteArray& key)
{
    const CopyWithJournal copy(file);
    return generationIn(copy.file(), key, Access::ReadWrite);
}

// Each transaction counts the generation up, and its journal holds the one before. So a file in the middle of that
// transaction has the one or the other. A file that can't be read is left to its journal.
bool isForeign(const QString& file, const QByteArray& key)
{
    const std::optional<qint64> lies = generationIn(file, key, Access::AsItLies);
    if (!lies)
        return false;
    const std::optional<qint64> playedBack = generationPlayedBack(file, key);
    return playedBack && *lies != *playedBack && *lies != *playedBack + 1;
}

// The file that the engine opens, under whose name it looks for the journal.
QString fileWithJournal(const QString& path)
{
    const QString file = QFileInfo(path).canonicalFilePath();
    return file.isEmpty() || QFileInfo(file + Suffix).size() == 0 ? QString() : file;
}

} // namespace

// The folder lies in memory, since a journal is often left by a disk that was full.
CopyWithJournal::CopyWithJournal(const QString& file)
    : folder_(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + QStringLiteral("/journal-XXXXXX"))
{
    const bool isCopied =
        folder_.isValid() && QFile::copy(file, this->file()) && QFile::copy(file + Suffix, this->file() + Suffix);
    if (!isCopied)
        throw RuntimeFailure(FailureKind::Database, QStringLiteral("no room to try the journal of ") + file);
    QFile::setPermissions(this->file(), QFile::ReadOwner | QFile::WriteOwner);
}

JournalBeside journalBeside(const QString& path, const QByteArray& key)
{
    const QString file = fileWithJournal(path);
    if (file.isEmpty())
        return JournalBeside::None;
    return isForeign(file, key) ? JournalBeside::Foreign : JournalBeside::Own;
}

void setForeignJournalAside(const QString& path, const QByteArray& key)
{
    const QString file = fileWithJournal(path);
    if (file.isEmpty())
        return;
    const FileLock lock(file);
    if (!lock.isHeld() || !isForeign(file, key))
        return;
    const QByteArray journal = QFile::encodeName(file + Suffix);
    const QByteArray aside = QFile::encodeName(file + QStringLiteral("-foreign") + Suffix);
    if (std::rename(journal.constData(), aside.constData()) != 0)
        throw RuntimeFailure(FailureKind::Database, QStringLiteral("a foreign journal lies beside ") + file);
}

} // namespace storage
