// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

namespace storage {

/// What a column holds and what it takes.
enum class ColumnType {
    Text, ///< any text, as given
    Integer, ///< a whole number of 64 bits; takes its text too
    Currency, ///< an amount of money; takes what reads as one
    Money, ///< a text that must read as an amount of money, kept as given but for misplaced commas
    Identity, ///< the row's number, given by the database when the row is stored, never twice; takes nothing
};

/// A column under its name in the file.
struct Column {
    const char* name;
    ColumnType type = ColumnType::Text;
};

/// A table: its name in the file and its columns, in the order of their ordinals. A staging table holds what can be
/// made again from other tables: its changes go to the file together, in `Connection::commitPending`.
struct TableDefinition {
    const char* name;
    std::span<const Column> columns;
    bool staging = false;
};

} // namespace storage
