// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/import_plan.h"

namespace importing {

/// Makes assets of the rows of a source, by the rules of the asset screen.
class AssetRows {
public:
    AssetRows(const Source& source, const Choices& choices);

    /// What a row is read as.
    struct Read {
        Asset asset;
        QStringList reasons; ///< why it can't go in
        int cutTexts = 0;
    };
    Read read(const Row& row) const;

    /// Tells a plan how rows are read, as far as a user should know it.
    void describe(Plan& plan) const;

private:
    // What the asset screen has in a field from the beginning.
    QString screenDefault(Inventory::Column column) const;
    Asset fromTable(const Row& row, QStringList& reasons) const;
    void takeCell(const Row& row, std::size_t at, Asset& asset, QStringList& reasons) const;
    void fillIn(Asset& asset) const;
    void readTyped(Asset& asset, QStringList& reasons) const;
    void readDate(QString& text, QStringList& reasons) const;
    void limit(Read& read) const;
    QStringList columnOf(Inventory::Column column) const;

    const Source& source_;
    const Choices& choices_;
    std::vector<Target> targets_;
    DateReader dates_;
    AmountReader amounts_;
    QString thisYear_; // a question to the system, which is not asked for each row
};

} // namespace importing
