// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/connection.h"

#include "platform/storage/journal.h"
#include "platform/storage/sqlcipher.h"
#include "platform/storage/statement.h"
#include "platform/storage/table_view.h"
#include "platform/values/failure.h"

#include <exception>

using values::FailureKind;
using values::RuntimeFailure;

namespace storage {

namespace {

struct Setting {
    QByteArray name;
    QByteArray value;
    QByteArray readsAs;
};

// The journal is cut to nothing at each commit, which is synced together with its length: a stored row survives a power
// cut. The cache, 4 MiB, serves writes; what is read stays in the views. Nothing of the data goes to a temporary file.
const Setting settings[] = {
    {"journal_mode", "TRUNCATE", "truncate"},
    {"locking_mode", "EXCLUSIVE", "exclusive"},
    {"synchronous", "FULL", "2"},
    {"cache_size", "-4096", "-4096"},
    {"temp_store", "MEMORY", "2"},
};

// The engine passes over a pragma that it doesn't know or can't follow, so each is read back.
void apply(sqlite3* handle, const Setting& setting)
{
    execute(handle, "PRAGMA " + setting.name + '=' + setting.value);
    Statement reading(handle, "PRAGMA " + setting.name);
    if (!reading.step() || reading.text(0) != std::string_view(setting.readsAs))
        throw RuntimeFailure(FailureKind::Database, QString::fromLatin1(setting.name) + " can't be set");
}

void refuseWithoutTables(sqlite3* handle)
{
    if (numberOf(handle, "SELECT count(*) FROM sqlite_master WHERE type = 'table'") == 0)
        throw RuntimeFailure(FailureKind::Database, QStringLiteral("the file holds no tables"));
}

void configure(sqlite3* handle)
{
    // Before anything that would make a database out of an empty file.
    refuseWithoutTables(handle);
    for (const Setting& setting : settings)
        apply(handle, setting);
    // The file is this process's own from now on: what the views hold in memory can't grow old.
    execute(handle, "BEGIN EXCLUSIVE");
    execute(handle, "COMMIT");
}

} // namespace

Connection::~Connection()
{
    try {
        close();
    } catch (const RuntimeFailure&) {
        // There is nobody left to tell; all but a staging table is in the file.
    }
}

void Connection::setFile(const QString& path, const FileKey& key)
{
    if (isOpen())
        throw RuntimeFailure(FailureKind::InvalidCall, QStringLiteral("the database is open"));
    path_ = path;
    key_ = key;
}

void Connection::open()
{
    if (isOpen())
        return;
    setForeignJournalAside(path_, key_);
    Handle opened = openFile(path_, key_, Access::ReadWrite);
    configure(opened.get());
    file_ = identityOf(opened.get());
    handle_ = std::move(opened);
}

void Connection::open(const QString& path, const FileKey& key)
{
    setFile(path, key);
    open();
}

void Connection::close()
{
    std::exception_ptr failure;
    while (!views_.empty()) {
        try {
            views_.back()->Close();
        } catch (const RuntimeFailure&) {
            failure = std::current_exception();
        }
    }
    shut();
    if (failure)
        std::rethrow_exception(failure);
}

void Connection::commitPending()
{
    for (TableView* view : views_)
        view->flush();
}

void Connection::enter(TableView& view)
{
    open();
    views_.push_back(&view);
}

void Connection::leave(TableView& view)
{
    std::erase(views_, &view);
    if (views_.empty())
        shut();
}

// One change, one commit.
void Connection::store(Statement& change)
{
    Transaction transaction(handle());
    change.run();
    confirm(transaction);
}

void Connection::confirm(Transaction& transaction)
{
    refuseIfMoved();
    transaction.commit();
}

// What is written into a file that has left its place nobody finds again.
void Connection::refuseIfMoved() const
{
    if (!liesAt(file_, path_))
        throw RuntimeFailure(
            FailureKind::Database, path_ + QStringLiteral(" was moved, replaced or removed while it was open"));
}

void Connection::shut()
{
    if (!isOpen())
        return;
    std::exception_ptr failure;
    try {
        giveUpJournal();
    } catch (const RuntimeFailure&) {
        failure = std::current_exception();
    }
    handle_.reset(); // a journal with contents stays, for the next opening
    texts_.clear();
    if (failure)
        std::rethrow_exception(failure);
}

// Where a write and its roll-back have both failed, the journal alone can make the file whole. The engine takes its
// file away unread, so it is read first, which plays it back.
void Connection::giveUpJournal()
{
    readOnce(handle());
    // Should the engine refuse, the empty file stays, which is harmless.
    sqlite3_exec(handle(), "PRAGMA locking_mode=NORMAL; PRAGMA journal_mode=DELETE", nullptr, nullptr, nullptr);
    refuseIfMoved();
}

} // namespace storage
