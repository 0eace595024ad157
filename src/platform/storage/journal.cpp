// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/journal.h"

#include "platform/storage/engine.h"
#include "platform/values/failure.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <cstdio>
#include <optional>

#include <fcntl.h>
#include <unistd.h>

using values::FailureKind;
using values::RuntimeFailure;

namespace storage {

namespace {

const QString Suffix = QStringLiteral("-journal");

// Keeps other processes out of a file while it lives, on the bytes that the engine locks. Unlike the engine's own lock,
// it survives that the same file is opened and closed meanwhile.
class FileLock {
public:
    explicit FileLock(const QString& path)
        : file_(::open(QFile::encodeName(path).constData(), O_RDWR | O_CLOEXEC))
    {
        struct ::flock bytes { };
        bytes.l_type = F_WRLCK;
        bytes.l_whence = SEEK_SET;
        bytes.l_start = 0x40000000;
        bytes.l_len = 512;
        isHeld_ = file_ >= 0 && ::fcntl(file_, F_OFD_SETLK, &bytes) == 0;
    }
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;
    ~FileLock()
    {
        if (file_ >= 0)
            ::close(file_);
    }

    bool isHeld() const { return isHeld_; }

private:
    int file_;
    bool isHeld_;
};

std::optional<qint64> generationIn(const QString& path, const QByteArray& key, Access access)
{
    try {
        return generationOf(openFile(path, key, access).get());
    } catch (const RuntimeFailure&) {
        return std::nullopt;
    }
}

// What the file would be once the journal was played back, tried on copies. They are as encrypted as the file; the
// folder lies in memory, since a journal is often left by a disk that was full.
std::optional<qint64> generationPlayedBack(const QString& file, const QByteArray& key)
{
    const QTemporaryDir folder(
        QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + QStringLiteral("/journal-XXXXXX"));
    const QString copy = folder.filePath(QStringLiteral("copy"));
    if (!folder.isValid() || !QFile::copy(file, copy) || !QFile::copy(file + Suffix, copy + Suffix))
        throw RuntimeFailure(FailureKind::Database, QStringLiteral("no room to try the journal of ") + file);
    return generationIn(copy, key, Access::ReadWrite);
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

} // namespace

void setForeignJournalAside(const QString& path, const QByteArray& key)
{
    const QString file = QFileInfo(path).canonicalFilePath();
    if (file.isEmpty() || QFileInfo(file + Suffix).size() == 0)
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
