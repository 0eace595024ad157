// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <vector>

/// A file that a restore can go back to. What is behind its kind is known once it has been read.
struct Backup {
    QString name; ///< when it was made, as commands write it
    QDateTime made;
    QString kind; ///< "Last close", "Earlier close", "Put aside"
    QString file;

    QString state; ///< in a word or two; empty while it hasn't been read
    QString reason; ///< why it can't be restored; empty where it can
    int assets = 0;
    QString total;
    QString proved; ///< how it lay when it was read just now, and found to be in order

    bool isRead() const { return !state.isEmpty(); }
    bool isInOrder() const { return isRead() && reason.isEmpty(); }
};

namespace backups {

/// All there are, the newest first. Those that haven't changed since they were last read count as read.
std::vector<Backup> all();

/// Opens a backup, reads it through and counts. A failure is what is found out.
void read(Backup& backup);

/// Keeps what was found out in those that are in order, for the next time. What fails costs the time to read them
/// again.
void remember(const std::vector<Backup>& backups);

/// The one of that name; "last", or the beginning of a name, will do where it means one alone. Failures: Refusal.
const Backup& find(const std::vector<Backup>& among, const QString& name);

/// "11/24/2026 7:15 PM"
QString spoken(const QDateTime& moment);

/// The columns of a list of backups, and what stands in them.
QStringList headings();
QStringList columnsOf(const Backup& backup);

} // namespace backups
