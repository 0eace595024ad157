// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/report/pages.h"

#include <QStringList>

#include <memory>
#include <vector>

/// A small report for tests: a head with the page numbers, a name and an amount for each row, and a note that grows.
namespace trial {

struct Table : report::Rows {
    std::vector<QStringList> rows;

    int count() const override { return static_cast<int>(rows.size()); }
    QString text(int row, int column) const override { return rows[static_cast<std::size_t>(row)][column]; }
};

inline constexpr double HeaderHeight = 1000, DetailHeight = 2000, NoteTop = 1000, NoteWidth = 6000, Left = 1000;

inline std::shared_ptr<report::Document> document(std::vector<QStringList> rows)
{
    auto document = std::make_shared<report::Document>();
    report::Layout& layout = document->layout;
    layout.axis = 4500;
    layout.margin = 700;
    layout.pageHeader.height = HeaderHeight;
    layout.pageHeader.labels = {
        {"Page %p of %P", {Left, 100, 3000, 300}, {9}}, {"%d", {5000, 100, 1500, 300}, {9}, report::Align::Right}};
    layout.detail.height = DetailHeight;
    layout.detail.fields = {{0, "Name", {Left, 100, 1000, 300}, {9}},
        {1, "Amount", {5000, 100, 2000, 300}, {9}, report::Align::Left, report::Format::Amount}};
    layout.detail.growing = report::Field{2, "Note", {Left, NoteTop, NoteWidth, 300}, {9}};
    layout.detail.rules = {{{Left, 1800, 7000, 0}}};
    auto table = std::make_shared<Table>();
    table->rows = std::move(rows);
    document->rows = table;
    document->names = {"Trial - Window", "Trial", "A. Author", "Trial 2026-11-24"};
    document->moment = {"11/24/2026", "9:05:00 AM"};
    return document;
}

inline std::vector<QStringList> rows(int count, const QString& note = "short")
{
    std::vector<QStringList> rows;
    for (int row = 0; row < count; ++row)
        rows.push_back({QString("row%1").arg(row), "$1.00", note});
    return rows;
}

inline const report::Paper letter{QPageSize(QPageSize::Letter)};

} // namespace trial
