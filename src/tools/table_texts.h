// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/storage/snapshot.h"

#include <string>
#include <vector>

/// Tables as text for other programs, each cell with the bytes that the file holds; amounts that are kept as numbers
/// become decimals of four places.
namespace table_texts {

/// A line of comma-separated values, as RFC 4180 has them: the headings, and a row.
std::string csvHeadings(const storage::TableDefinition& table);
std::string csvRow(const storage::Snapshot& table, int row);

/// A row as a JSON object, and a text as a JSON string. Bytes that are no UTF-8 become the replacement character there.
std::string jsonRow(const storage::Snapshot& table, int row);
std::string jsonText(std::string_view text);

/// The JSON schema of a file with these tables, which their rows satisfy.
std::string jsonSchema(const std::vector<storage::Snapshot>& tables);

} // namespace table_texts
