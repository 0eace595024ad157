// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/thinning.h"

#include <algorithm>
#include <numeric>
#include <set>

namespace thinning {

namespace {

constexpr std::size_t lastCloses = 10;

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
};

std::vector<std::size_t> newestFirst(const std::vector<QDateTime>& made)
{
    std::vector<std::size_t> order(made.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&made](std::size_t a, std::size_t b) { return made[a] > made[b]; });
    return order;
}

} // namespace

std::vector<bool> isKept(const std::vector<QDateTime>& made, const QDateTime& now)
{
    const QDate today = now.date();
    const Rule rules[] = {{today.addDays(-7), dayOf}, {today.addMonths(-2), weekOf}, {today.addYears(-2), monthOf}};
    std::vector<bool> kept(made.size(), false);
    const std::vector<std::size_t> order = newestFirst(made);
    for (std::size_t place = 0; place < std::min(order.size(), lastCloses); ++place)
        kept[order[place]] = true;
    for (const Rule& rule : rules) {
        std::set<qint64> taken;
        for (const std::size_t index : order) {
            const QDate day = made[index].date();
            if (day > rule.since && taken.insert(rule.span(day)).second)
                kept[index] = true;
        }
    }
    return kept;
}

} // namespace thinning
