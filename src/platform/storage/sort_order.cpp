// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/sort_order.h"

#include "platform/values/collation.h"
#include "platform/values/currency.h"
#include "platform/values/failure.h"

#include <QStringList>

#include <algorithm>
#include <utility>

namespace storage {

namespace {

int ordinalOf(const QString& name, const TableDefinition& table)
{
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        if (name.compare(QLatin1StringView(table.columns[i].name), Qt::CaseInsensitive) == 0)
            return static_cast<int>(i);
    }
    throw values::RuntimeFailure(values::FailureKind::InvalidCall, QStringLiteral("no column \"%1\"").arg(name));
}

bool takeWord(QString& text, QLatin1StringView word)
{
    if (!text.endsWith(word, Qt::CaseInsensitive))
        return false;
    text = text.chopped(word.size()).trimmed();
    return true;
}

SortKey parseKey(QString text, const TableDefinition& table)
{
    const bool descending = takeWord(text, QLatin1StringView(" DESC"));
    if (!descending)
        takeWord(text, QLatin1StringView(" ASC"));
    if (text.startsWith(u'[') && text.endsWith(u']'))
        text = text.sliced(1).chopped(1);
    return {ordinalOf(text, table), descending};
}

template <typename Number>
int order(Number a, Number b)
{
    return a < b ? -1 : (b < a ? 1 : 0);
}

int compareCells(ColumnType type, const QString& a, const QString& b)
{
    switch (type) {
    case ColumnType::Identity:
    case ColumnType::Integer:
    case ColumnType::Currency:
        return order(a.toLongLong(), b.toLongLong());
    case ColumnType::Money:
        return order(values::Currency::tryParse(a), values::Currency::tryParse(b));
    case ColumnType::Text:
        break;
    }
    return values::compareNames(a, b);
}

} // namespace

std::vector<SortKey> parseSortOrder(const QString& columnList, const TableDefinition& table)
{
    std::vector<SortKey> keys;
    if (columnList.trimmed().isEmpty())
        return keys;
    for (const QString& part : columnList.split(u','))
        keys.push_back(parseKey(part.trimmed(), table));
    return keys;
}

std::vector<int> placesOf(ColumnType type, const std::vector<TextId>& cells, const TextPool& texts)
{
    constexpr int unseen = -1;
    std::vector<int> places(cells.empty() ? 0 : *std::ranges::max_element(cells) + std::size_t{1}, unseen); // by cell
    std::vector<TextId> distinct; // few of many rows, mostly: they alone are compared
    for (const TextId cell : cells)
        if (std::exchange(places[cell], 0) == unseen)
            distinct.push_back(cell);
    const auto before = [type, &texts](TextId one, TextId other) {
        return compareCells(type, texts.text(one), texts.text(other)) < 0;
    };
    std::ranges::stable_sort(distinct, before);
    for (std::size_t i = 1; i < distinct.size(); ++i)
        places[distinct[i]] = places[distinct[i - 1]] + (before(distinct[i - 1], distinct[i]) ? 1 : 0);
    std::vector<int> result(cells.size());
    std::ranges::transform(cells, result.begin(), [&places](TextId cell) { return places[cell]; });
    return result;
}

} // namespace storage
