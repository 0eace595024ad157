// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/storage/file_reader.h"
#include "platform/values/currency.h"
#include "platform/values/failure.h"

#include <optional>
#include <vector>

/// A file that is no household of this program, or no longer one.
class UnreadableHousehold : public values::RuntimeFailure {
public:
    UnreadableHousehold(const QString& state, const QString& reason);

    const QString& state() const { return state_; } ///< in a word or two
    const QString& reason() const { return reason_; }

private:
    QString state_;
    QString reason_;
};

/// All rows of a household's file, as they lay in it at one moment.
class Household {
public:
    /// Reads a file to its last page, and each table. Failures: UnreadableHousehold.
    explicit Household(const QString& file, storage::FileReader::Locks locks = storage::FileReader::Locks::Respected);

    /// The tables in the order of their definitions, and one of them by its name.
    const std::vector<storage::Snapshot>& tables() const { return tables_; }
    const storage::Snapshot& table(std::string_view name) const;

    storage::JournalBeside journal() const { return journal_; }

    /// The number of the last transaction stored in the file, and of the last asset that it has given one.
    qint64 generation() const { return generation_; }
    qint64 lastAsset() const { return lastAsset_; }

    int assets() const;

    /// The sum of all amounts that can be read; nothing where it goes beyond what an amount can be.
    std::optional<values::Currency> total() const { return total_; }

    /// "12 assets, $1,234.50"
    QString summary() const;

private:
    std::vector<storage::Snapshot> tables_;
    storage::JournalBeside journal_ = storage::JournalBeside::None;
    std::optional<values::Currency> total_;
    qint64 generation_ = 0;
    qint64 lastAsset_ = 0;
};

/// The same of so many assets, and of a total where there is one.
QString worth(int assets, const std::optional<values::Currency>& total);

/// "1 asset", "2 assets"
QString counted(int count, const QString& one, const QString& many);
