// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

#include <vector>

/// The backups that later ones have replaced, and the files that a restore has put aside.
namespace earlier {

struct KeptFile {
    QString name; ///< of its folder: when it was made, and whether it was put aside
    QDateTime made;
    bool isPutAside;
    QString file;
};

/// All of them, the newest first.
std::vector<KeptFile> all();

/// Whether a kept file is this backup itself, since the close that kept it broke off before it made another.
bool isOf(const KeptFile& kept, const QString& backup);

/// Whether a folder of that name is for what a restore has put aside.
bool isForPutAside(const QString& name);

/// The name of a folder for the database of that moment, which no other one has. Nothing is made.
QString freeName(const QDateTime& made, bool isPutAside);

/// Before a close replaces the backup: keeps it, and gives up those kept that are no longer wanted or whose room is.
/// Where this fails, the reason goes to the error output, and the close goes on without it.
void keep_Backup();

} // namespace earlier
