// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/schema.h"

#include "platform/storage/engine.h"
#include "platform/storage/sql.h"
#include "platform/storage/statement.h"
#include "platform/values/failure.h"

#include <QFile>

using values::FailureKind;
using values::RuntimeFailure;

namespace storage {

namespace {

void createPrivateFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly, QFileDevice::ReadOwner | QFileDevice::WriteOwner))
        throw RuntimeFailure(FailureKind::File, path + QStringLiteral(": ") + file.errorString());
}

qint64 countRows(sqlite3* handle, const QByteArray& table)
{
    return numberOf(handle, "SELECT count(*) FROM " + sql::quoted(table.constData()));
}

} // namespace

void createDatabase(const QString& path, const FileKey& key, std::span<const TableDefinition* const> tables)
{
    createPrivateFile(path);
    const Handle handle = openFile(path, key, Access::ReadWrite);
    Transaction transaction(handle.get());
    for (const TableDefinition* table : tables)
        execute(handle.get(), sql::createTable(*table));
    transaction.commit();
}

std::vector<TableCount> checkDatabase(const QString& path, const FileKey& key)
{
    const Handle handle = openFile(path, key, Access::ReadOnly);
    proveIntact(handle.get());
    std::vector<TableCount> counts;
    Statement tables(handle.get(),
        "SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite\\_%' ESCAPE '\\' ORDER BY name");
    while (tables.step()) {
        const QByteArray name(tables.text(0).data(), static_cast<qsizetype>(tables.text(0).size()));
        counts.push_back({QString::fromUtf8(name), countRows(handle.get(), name)});
    }
    if (counts.empty())
        throw RuntimeFailure(FailureKind::Database, QStringLiteral("the file holds no tables"));
    return counts;
}

} // namespace storage
