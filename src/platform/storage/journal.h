// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace storage {

/// Puts aside the journal beside a database file where it was kept for another state of the file, as after a backup was
/// copied over the file of a session that broke off. Played back by the engine it would destroy the file. It is kept as
/// "NAME-foreign-journal". A journal that may belong to the file is left to the engine, and so is a file in use.
/// Failures: Database, where this can't be found out or done; all is then left as it was.
void setForeignJournalAside(const QString& path, const QByteArray& key);

} // namespace storage
