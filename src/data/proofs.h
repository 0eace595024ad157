// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/storage/snapshot.h"
#include "platform/values/currency.h"

#include <QString>

#include <optional>
#include <vector>

/// What is known of backups since they were last read through.
namespace proofs {

/// What a backup holds that can be read to its last page.
struct Contents {
    qint64 assets = 0;
    QString total; ///< "$1,234.50", or "?" where it goes beyond what an amount can be
};

/// The sum of all amounts that can be read; nothing where it goes beyond what an amount can be.
std::optional<values::Currency> sumOf(const storage::Snapshot& inventory);

/// The assets of a household, counted and summed.
Contents contentsOf(const storage::Snapshot& inventory);

/// How a file lies: its number, size and times, one of which changes with whatever is done to it. Empty where it isn't
/// there, or beside a journal, which may make another one of it.
QString stateOf(const QString& file);

/// The proofs, which lie as one encrypted file beside the earlier backups. Who loses it has all backups read anew.
class Book {
public:
    /// Reads it; where that fails, nothing is known.
    Book();

    /// What was found in a file that hasn't changed since.
    std::optional<Contents> of(const QString& file) const;

    /// Notes what was found in a file that lay so before it was read and lies so still. Without a state it does
    /// nothing.
    void enter(const QString& state, const Contents& contents);

    /// Writes what was entered, whole or not at all. Failures: File, Database.
    void write();

private:
    struct Entry {
        QString state;
        Contents contents;
    };

    std::vector<Entry> entries_;
    bool hasChanged_ = false;
};

} // namespace proofs
