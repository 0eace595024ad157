// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/data_store.h"

#include <QString>

#include <span>

/// What an asset must have, and what is stored with a new one, whoever enters it.
namespace asset_rules {

/// Something without which no asset is stored.
struct Requirement {
    Inventory::Column column;
    bool (*isUnmet)(const QString& text); ///< fails (TypeMismatch) for what stands as a date and is none
    const char* message;
    const char* replacement = nullptr; ///< what stands there afterwards
};

/// All of them, in the order in which they are looked at.
std::span<const Requirement> requirements();

/// What is said of a date that can't be read.
inline constexpr const char* InvalidDate =
    "Invalid Purchase Date...Be Sure The Format Is mm/dd/yyyy (Example: 12/25/2005)";

/// How many characters can be entered; 254 where nothing else is set.
int limitOf(Inventory::Column column);

/// What is stored of a location of a receipt. A text that stands there although there is no receipt is not specified
/// rather than none: on purpose.
QString receiptLocation(const QString& entered, bool isNoReceipt);

/// A new asset has no warranty yet.
void putNoWarranty(storage::TableView& asset);

/// Moves the running total from what an asset was worth to what it is worth.
void moveAssetValue(storage::TableView& general, values::Currency less, values::Currency more);

/// Teaches a name table what it doesn't know of these three.
void addNames(storage::TableView& table, const QString& location, const QString& category, const QString& item);

} // namespace asset_rules
