// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/storage/engine.h"

#include <QString>
#include <QTemporaryDir>

namespace storage {

/// What lies beside a database file. An empty journal counts as none.
enum class JournalBeside {
    None,
    Own, ///< it may belong to the file: the next opening plays it back
    Foreign, ///< it was kept for another state of the file, and would destroy it
};

/// Finds out which. Nobody may have the file open. Failures: Database, where this can't be found out.
JournalBeside journalBeside(const QString& path, const FileKey& key);

/// A file and its journal in a folder of their own, for as long as it lives: opening the copy plays the journal back.
/// It is as encrypted as the file. Failures: Database, where there is no room.
class CopyWithJournal {
public:
    explicit CopyWithJournal(const QString& file);

    QString file() const { return folder_.filePath(QStringLiteral("copy")); }

private:
    QTemporaryDir folder_;
};

/// Puts aside the journal beside a database file where it was kept for another state of the file, as after a backup was
/// copied over the file of a session that broke off. Played back by the engine it would destroy the file. It is kept as
/// "NAME-foreign-journal". A journal that may belong to the file is left to the engine, and so is a file in use.
/// Failures: Database, where this can't be found out or done; all is then left as it was.
void setForeignJournalAside(const QString& path, const FileKey& key);

} // namespace storage
