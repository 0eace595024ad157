// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/import_source.h"

namespace importing {

/// The rows of an export's tables, by their names; those that are only staged aren't among them.
using Tables = std::map<std::string, std::vector<Row>, std::less<>>;

/// Reads the tables of an export, out of its folder of CSV files or out of its file of JSON. Failures: Refusal, where
/// it isn't whole.
Tables tablesInFolder(const QString& folder);
Tables tablesInJson(std::string_view json, const QString& path);

/// Whether a text begins with the headings of an export's assets.
bool isInventory(std::string_view text);

/// The rows of the assets alone; their last cell may be what is wrong with them, which doesn't count.
std::vector<Row> inventoryRows(std::string_view text, const QString& path);

} // namespace importing
