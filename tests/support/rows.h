// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/storage/table_view.h"

#include <QStringList>

#include <initializer_list>
#include <utility>
#include <vector>

// How a test fills and reads tables.

using Cells = std::initializer_list<std::pair<int, QString>>;

/// Columns of the current row.
void put(storage::TableView& row, const Cells& cells);

/// Columns of the first row as the file holds it: the table is read anew.
QStringList inFile(storage::TableView& table, const std::vector<int>& columns);

/// A new row: columns with their texts, or texts from a column on.
void addRow(storage::TableView& table, const Cells& cells);
void addRow(storage::TableView& table, int first, const QStringList& texts);

/// A row of the inventory: texts from the area on, and "None" behind them; the amount is $12.50 unless it is given.
void addAssetRow(const QStringList& texts);

/// A row of names, "Location", "Category", "Item": a user's, or one that came with the program.
void addNames(storage::TableView& table, const QStringList& names, int standard = 0);

void removeRows(storage::TableView& table);

/// Columns of all rows with "|" between them, or one column, in the order of the view, which stays where it stands.
QStringList rowsOf(const storage::TableView& table, int first, int last);
QStringList columnOf(const storage::TableView& table, int column);
