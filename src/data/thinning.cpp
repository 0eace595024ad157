// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/thinning.h"

#include <algorithm>
#include <numeric>
#include <set>

namespace thinning {

namespace {

constexpr std::size_t lastCloses = 10;
constexpr qint64 longestGap = 31; // days

// Why one is kept, from what goes first where there is no room to what never goes.
enum class Worth { None, LastCloses, Day, Week, Stays };

qint64 dayOf(const QDate& date)
{
    return date.toJulianDay();
}

qint64 weekOf(const QDate& date)
{
    return date.toJulianDay() / 7; // day 0 was a Monday
}

qint64 monthOf(const QDate& date)
{
    return date.year() * qint64{12} + date.month();
}

// One of each span is kept, back to a day that is left out itself.
struct Rule {
    QDate since;
    qint64 (*span)(const QDate&);
    Worth worth;
};

using Row = std::vector<std::size_t>;

// What was made up to `now`, and what was made later, each the newest first.
std::vector<Row> rowsOf(const std::vector<Kept>& kept, const QDateTime& now)
{
    Row order(kept.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, [&kept](std::size_t a, std::size_t b) { return kept[a].made > kept[b].made; });
    const auto first = std::ranges::find_if(order, [&](std::size_t index) { return kept[index].made <= now; });
    return {Row(first, order.end()), Row(order.begin(), first)};
}

// The days on which they were made if no clock had jumped. Where it has, each is older than the one before by a month.
std::vector<QDate> steadyDays(const std::vector<Kept>& kept, const Row& row, const QDate& today)
{
    std::vector<QDate> days;
    QDate day = today;
    QDate newer = std::max(today, kept[row.front()].made.date());
    for (const std::size_t index : row) {
        const QDate made = kept[index].made.date();
        day = day.addDays(-std::min(made.daysTo(newer), longestGap));
        newer = made;
        days.push_back(day);
    }
    return days;
}

void rate(const std::vector<Kept>& kept, const Row& row, const QDate& today, std::vector<Worth>& worth)
{
    const Rule rules[] = {{today.addDays(-7), dayOf, Worth::Day}, {today.addMonths(-2), weekOf, Worth::Week},
        {today.addYears(-2), monthOf, Worth::Stays}};
    const std::vector<QDate> days = steadyDays(kept, row, today);
    for (std::size_t place = 0; place < std::min(row.size(), lastCloses); ++place)
        worth[row[place]] = Worth::LastCloses;
    for (const Rule& rule : rules) {
        std::set<qint64> taken;
        for (std::size_t place = 0; place < row.size(); ++place)
            if (days[place] > rule.since && taken.insert(rule.span(kept[row[place]].made.date())).second)
                worth[row[place]] = rule.worth;
    }
    const auto isLeft = [&worth](std::size_t index) { return worth[index] != Worth::None; };
    worth[row.front()] = Worth::Stays;
    worth[*std::find_if(row.rbegin(), row.rend(), isLeft)] = Worth::Stays;
}

std::vector<Worth> worthOf(
    const std::vector<Kept>& kept, const Row& newestFirst, const std::vector<Row>& rows, const QDate& today)
{
    std::vector<Worth> worth(kept.size(), Worth::None);
    for (const Row& row : rows)
        if (!row.empty())
            rate(kept, row, today, worth);
    const auto proved = std::ranges::find_if(newestFirst, [&kept](std::size_t index) { return kept[index].isProved; });
    if (proved != newestFirst.end())
        worth[*proved] = Worth::Stays;
    return worth;
}

} // namespace

std::vector<std::size_t> givenUp(const std::vector<Kept>& kept, const QDateTime& now, qint64 room)
{
    const std::vector<Row> rows = rowsOf(kept, now);
    Row newestFirst = rows[0];
    newestFirst.insert(newestFirst.end(), rows[1].begin(), rows[1].end());
    const std::vector<Worth> worth = worthOf(kept, newestFirst, rows, now.date());

    Row order(newestFirst.rbegin(), newestFirst.rend());
    std::ranges::stable_sort(order, {}, [&worth](std::size_t index) { return worth[index]; });
    qint64 taken = std::accumulate(
        kept.begin(), kept.end(), qint64{0}, [](qint64 sum, const Kept& each) { return sum + each.size; });
    Row givenUp;
    for (const std::size_t index : order) {
        if (worth[index] == Worth::Stays || (worth[index] != Worth::None && taken <= room))
            break;
        taken -= kept[index].size;
        givenUp.push_back(index);
    }
    return givenUp;
}

} // namespace thinning
