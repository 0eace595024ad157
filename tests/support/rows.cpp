// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/rows.h"

#include "data/data_store.h"

void put(storage::TableView& row, const Cells& cells)
{
    for (const auto& [column, text] : cells)
        row.Fields(column) = text;
    row.Update();
}

QStringList inFile(storage::TableView& table, const std::vector<int>& columns)
{
    if (table.isOpen())
        table.Close();
    table.Open();
    QStringList texts;
    for (const int column : columns)
        texts.append(table.Fields(column).text());
    return texts;
}

void addRow(storage::TableView& table, const Cells& cells)
{
    table.AddNew();
    put(table, cells);
}

void addRow(storage::TableView& table, int first, const QStringList& texts)
{
    table.AddNew();
    for (const QString& text : texts)
        table.Fields(first++) = text;
    table.Update();
}

void addAssetRow(const QStringList& texts)
{
    QStringList all = texts;
    while (all.size() <= Inventory::WarrantyDescription - Inventory::Area)
        all.append(all.size() == Inventory::Amount - Inventory::Area ? "$12.50" : "None");
    addRow(Data1.rsInventory, Inventory::Area, all);
}

void addNames(storage::TableView& table, const QStringList& names, int standard)
{
    addRow(table, Names::Location, names + QStringList(QString::number(standard)));
}

void removeRows(storage::TableView& table)
{
    storage::Transaction atOnce(Data1.Home.handle()); // which takes a fraction of the time
    for (table.MoveFirst(); !table.atEOF(); table.MoveNext())
        table.Delete();
    atOnce.commit();
}

QStringList rowsOf(const storage::TableView& table, int first, int last)
{
    QStringList rows;
    const storage::Snapshot all = table.snapshot();
    for (int row = 0; row < all.rowCount(); ++row) {
        QStringList texts;
        for (int column = first; column <= last; ++column)
            texts.append(all.text(row, column));
        rows.append(texts.join('|'));
    }
    return rows;
}

QStringList columnOf(const storage::TableView& table, int column)
{
    return rowsOf(table, column, column);
}
