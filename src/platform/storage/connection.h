// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/storage/engine.h"
#include "platform/storage/text_pool.h"

#include <memory>
#include <vector>

namespace storage {

class Statement;
class TableView;
class Transaction;

/// The one connection to an encrypted database file, which no other process can open meanwhile. It opens with its first
/// view and closes with its last, so that the file is at rest as soon as all views are closed.
class Connection {
public:
    Connection() = default;
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection();

    /// Names the file that `open` opens, and its key. Failures: InvalidCall while the connection is open.
    void setFile(const QString& path, const FileKey& key);

    /// Opens the file named, unless it is open. Failures: Database, where the file is missing, empty, damaged,
    /// read-only, no database, under another key or in use by another process. The file is then as it was, and no file
    /// is made. A journal beside it that was kept for another file is put aside.
    void open();

    /// `setFile` and `open` in one.
    void open(const QString& path, const FileKey& key);

    /// Closes all views that are still open, and the file. Pending edits are dropped; staging tables are written first.
    /// Failures: Database, where a staging table can't be written, the file has left its place, or a write that failed
    /// could neither be finished nor taken back, which the next opening then does. The connection is closed all the
    /// same.
    void close();

    bool isOpen() const { return handle_ != nullptr; }

    /// Writes the staging tables that have changed. The event layer calls it when the outermost handler returns.
    /// Failures: Database; the views of these tables then hold what the file holds.
    void commitPending();

    /// The open file, for statements; none while the connection is closed.
    sqlite3* handle() const { return handle_.get(); }

private:
    friend class TableView;

    void enter(TableView& view);
    void leave(TableView& view);
    void store(Statement& change);
    void confirm(Transaction& transaction);
    void refuseIfMoved() const;
    void giveUpJournal();
    void shut();

    QString path_;
    FileKey key_;
    TextPool texts_; // of all its views
    Handle handle_;
    FileIdentity file_; // the one that is open
    std::vector<TableView*> views_;
};

} // namespace storage
