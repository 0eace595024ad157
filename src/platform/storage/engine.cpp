// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/engine.h"

#include "platform/storage/sqlcipher.h"
#include "platform/storage/statement.h"
#include "platform/system/paths.h"
#include "platform/values/failure.h"
#include "platform/values/file_name.h"

#include <QFileInfo>

#include <cstdio>
#include <optional>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace storage {

namespace {

// Under a name in newer versions alone.
constexpr int NoJournalInFolder = SQLITE_READONLY | (6 << 8);

int flagsOf(Access access)
{
    // Without SQLITE_OPEN_CREATE. One thread uses a handle, so the engine needs no locks around it.
    return SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_URI
        | (access == Access::ReadWrite ? SQLITE_OPEN_READWRITE : SQLITE_OPEN_READONLY);
}

// The file behind a link: its journal belongs beside it, and some versions of the engine open no link.
QFileInfo fileAt(const QString& path)
{
    const QByteArray name = values::bytesOfName(path);
    struct ::stat found { };
    if (::lstat(name.constData(), &found) != 0 || !S_ISLNK(found.st_mode))
        return QFileInfo(path);
    const QString real = sys::realPath(path);
    return QFileInfo(real.isEmpty() ? path : real);
}

int openFolder(const QString& path)
{
    const int folder = ::open(values::bytesOfName(path).constData(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        throw values::RuntimeFailure(values::FailureKind::Database,
            QStringLiteral("the folder %1 can't be opened (%2)")
                .arg(path, QString::fromStdString(std::generic_category().message(errno))));
    return folder;
}

// The engine refuses paths beyond 512 bytes, so it is given a short one through the open folder.
QByteArray addressOf(int folder, const QString& name, Access access)
{
    QByteArray address =
        "file:/proc/self/fd/" + QByteArray::number(folder) + '/' + values::bytesOfName(name).toPercentEncoding();
    return access == Access::AsItLies ? address + "?immutable=1" : address;
}

// Opening a pipe waits for its other end, and reading a device may never end.
void refuseUnlessRegular(const QString& path)
{
    struct ::stat found { };
    if (::stat(values::bytesOfName(path).constData(), &found) == 0 && !S_ISREG(found.st_mode))
        throw values::RuntimeFailure(values::FailureKind::Database, path + QStringLiteral(" is no regular file"));
}

// The path as it was given: some versions of the engine put the folder behind a link in the link's place, and measure
// that.
int keepPath(sqlite3_vfs* /*layer*/, const char* path, int size, char* kept)
{
    if (std::snprintf(kept, static_cast<std::size_t>(size), "%s", path) >= size)
        return SQLITE_CANTOPEN;
    return SQLITE_OK;
}

// The engine's way to files as it is at this moment, but for the path.
const char* fileLayer()
{
    static sqlite3_vfs layer;
    const sqlite3_vfs* usual = sqlite3_vfs_find(nullptr);
    sqlite3_vfs_unregister(&layer);
    layer = *usual;
    layer.zName = "path as given";
    layer.xFullPathname = keepPath;
    sqlite3_vfs_register(&layer, 0);
    return layer.zName;
}

bool hasSystemReason(int code)
{
    const int primary = code & 0xff;
    return primary == SQLITE_IOERR || primary == SQLITE_FULL || primary == SQLITE_CANTOPEN || code == NoJournalInFolder;
}

QString nameOf(sqlite3* handle)
{
    return values::textOfName(sqlite3_db_filename(handle, "main"));
}

// A file that the engine can't make it tries once more as one to read, and then knows only that there is none.
int reasonOf(sqlite3* handle, int code)
{
    const QString name = nameOf(handle);
    const bool madeNone = (code & 0xff) == SQLITE_CANTOPEN || code == NoJournalInFolder;
    if (madeNone && !name.isEmpty()
        && ::euidaccess(values::bytesOfName(QFileInfo(name).path()).constData(), W_OK | X_OK) != 0)
        return errno;
    return sqlite3_system_errno(handle);
}

// The first bytes of a file. They are read by the engine's own way, since a file that is closed takes all locks of the
// process with it.
QByteArray saltOf(sqlite3* handle)
{
    constexpr int saltSize = 16;
    QByteArray salt(saltSize, '\0');
    sqlite3_file* file = nullptr;
    sqlite3_file_control(handle, "main", SQLITE_FCNTL_FILE_POINTER, &file);
    const bool isRead = file && file->pMethods && file->pMethods->xRead(file, salt.data(), saltSize, 0) == SQLITE_OK;
    return isRead ? salt.toHex() : QByteArray();
}

QByteArray keyFor(sqlite3* handle, const FileKey& key)
{
    return !key.knownSalt.isEmpty() && saltOf(handle) == key.knownSalt ? "x'" + key.knownKey + '\'' : key.passphrase;
}

// What version 4 of the engine has to be told, and version 3 passes over: files have the form of 3, which either opens,
// and failures are told by the caller instead of being written to the terminal. The first key of a process makes its
// cryptography, and with it the log anew, so that only then it can be told to be silent.
int unlock(sqlite3* handle, const FileKey& key)
{
    const QByteArray words = keyFor(handle, key);
    int code = sqlite3_key(handle, words.constData(), static_cast<int>(words.size()));
    for (const char* setting : {"PRAGMA cipher_log_level = NONE", "PRAGMA cipher_compatibility = 3"})
        if (code == SQLITE_OK)
            code = sqlite3_exec(handle, setting, nullptr, nullptr, nullptr);
    return code;
}

// The engine takes what a last page lacks for zeros.
void refuseCutShort(sqlite3* handle, const QString& path)
{
    const qint64 whole = numberOf(handle, "PRAGMA page_count") * numberOf(handle, "PRAGMA page_size");
    struct ::stat found { };
    if (::stat(values::bytesOfName(path).constData(), &found) != 0 || found.st_size < whole)
        throw values::RuntimeFailure(values::FailureKind::Database, QStringLiteral("the file is cut short"));
}

std::optional<FileIdentity> identityAt(const char* path)
{
    struct ::stat found { };
    if (::stat(path, &found) != 0)
        return std::nullopt;
    return FileIdentity{found.st_dev, found.st_ino};
}

} // namespace

qint64 generationOf(sqlite3* handle)
{
    return numberOf(handle, "PRAGMA user_version");
}

void readOnce(sqlite3* handle)
{
    numberOf(handle, "SELECT count(*) FROM sqlite_master");
}

void proveIntact(sqlite3* handle)
{
    Statement check(handle, "PRAGMA quick_check(1)");
    if (!check.step() || check.text(0) != "ok")
        throw values::RuntimeFailure(values::FailureKind::Database, QString::fromUtf8(check.text(0)));
}

FileIdentity identityOf(sqlite3* handle)
{
    const std::optional<FileIdentity> identity = identityAt(sqlite3_db_filename(handle, "main"));
    int hasMoved = 0;
    sqlite3_file_control(handle, "main", SQLITE_FCNTL_HAS_MOVED, &hasMoved);
    if (!identity || hasMoved != 0)
        throw values::RuntimeFailure(
            values::FailureKind::Database, QStringLiteral("the file was moved while it was opened"));
    return *identity;
}

bool liesAt(FileIdentity file, const QString& path)
{
    return identityAt(values::bytesOfName(path).constData()) == file;
}

void CloseHandle::operator()(sqlite3* handle) const
{
    sqlite3_close(handle);
    ::close(folder);
}

void throwEngineFailure(sqlite3* handle, int code)
{
    QString words = QString::fromUtf8(handle ? sqlite3_errmsg(handle) : sqlite3_errstr(code));
    if ((code & 0xff) == SQLITE_NOTADB) // which each version words in its own way
        words = QStringLiteral("file is encrypted or is not a database");
    const int reason = handle ? reasonOf(handle, code) : 0;
    if (hasSystemReason(code) && reason != 0)
        words += QStringLiteral(" (%1)").arg(QString::fromStdString(std::generic_category().message(reason)));
    throw values::RuntimeFailure(values::FailureKind::Database, words);
}

Handle openFile(const QString& path, const FileKey& key, Access access)
{
    const QFileInfo file = fileAt(path);
    refuseUnlessRegular(file.filePath());
    refuseUnlessRegular(file.filePath() + QStringLiteral("-journal"));
    const int folder = openFolder(file.path());
    sqlite3* opened = nullptr;
    const QByteArray address = addressOf(folder, file.fileName(), access);
    int code = sqlite3_open_v2(address.constData(), &opened, flagsOf(access), fileLayer());
    Handle handle(opened, CloseHandle{folder});
    if (code == SQLITE_OK)
        code = unlock(opened, key);
    if (code != SQLITE_OK)
        throwEngineFailure(opened, code);
    sqlite3_extended_result_codes(opened, 1);
    readOnce(opened);
    refuseCutShort(opened, path);
    return handle;
}

} // namespace storage
