// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/proofs.h"

#include <QDateTime>
#include <QString>

#include <optional>
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

/// What a close does for them, in two steps. Where they fail, the reason goes to the error output and the close goes
/// on.
class Keeping {
public:
    /// Before the close replaces the backup: keeps it. Nothing is given up yet.
    Keeping();

    /// Once the new backup is in place and proved to hold this: notes that, and gives up those kept that are no longer
    /// wanted or whose room is.
    void thin(const proofs::Contents& contents);

    /// What the user is told of it; empty where all went well.
    const QString& trouble() const { return trouble_; }

private:
    QString kept_; // the name of its folder
    std::optional<proofs::Contents> proof_; // of what it holds
    QString trouble_;
    QString said_; // on the error output: one failure is enough
};

/// Why the last close could not keep the backup that it replaced; empty where it could.
QString lastTrouble();

} // namespace earlier
