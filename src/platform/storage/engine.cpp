// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/engine.h"

#include "platform/storage/sqlcipher.h"
#include "platform/storage/statement.h"
#include "platform/values/failure.h"

#include <QFileInfo>

#include <system_error>

namespace storage {

namespace {

int flagsOf(Access access)
{
    // Without SQLITE_OPEN_CREATE. One thread uses a handle, so the engine needs no locks around it.
    return SQLITE_OPEN_NOMUTEX | (access == Access::ReadOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE);
}

bool hasSystemReason(int code)
{
    const int primary = code & 0xff;
    return primary == SQLITE_IOERR || primary == SQLITE_FULL || primary == SQLITE_CANTOPEN;
}

qint64 numberOf(sqlite3* handle, const QByteArray& sql)
{
    Statement statement(handle, sql);
    statement.step();
    return statement.number(0);
}

// The engine takes what a last page lacks for zeros.
void refuseCutShort(sqlite3* handle, const QString& path)
{
    const qint64 whole = numberOf(handle, "PRAGMA page_count") * numberOf(handle, "PRAGMA page_size");
    if (QFileInfo(path).size() < whole)
        throw values::RuntimeFailure(values::FailureKind::Database, QStringLiteral("the file is cut short"));
}

} // namespace

void CloseHandle::operator()(sqlite3* handle) const
{
    sqlite3_close(handle);
}

void throwEngineFailure(sqlite3* handle, int code)
{
    QString words = QString::fromUtf8(handle ? sqlite3_errmsg(handle) : sqlite3_errstr(code));
    const int reason = handle ? sqlite3_system_errno(handle) : 0;
    if (hasSystemReason(code) && reason != 0)
        words += QStringLiteral(" (%1)").arg(QString::fromStdString(std::generic_category().message(reason)));
    throw values::RuntimeFailure(values::FailureKind::Database, words);
}

Handle openFile(const QString& path, const QByteArray& key, Access access)
{
    sqlite3* opened = nullptr;
    int code = sqlite3_open_v2(path.toUtf8().constData(), &opened, flagsOf(access), nullptr);
    Handle handle(opened);
    if (code == SQLITE_OK)
        code = sqlite3_key(opened, key.constData(), static_cast<int>(key.size()));
    if (code != SQLITE_OK)
        throwEngineFailure(opened, code);
    sqlite3_extended_result_codes(opened, 1);
    numberOf(opened, "SELECT count(*) FROM sqlite_master");
    refuseCutShort(opened, path);
    return handle;
}

} // namespace storage
