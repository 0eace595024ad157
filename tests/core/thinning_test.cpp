// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/thinning.h"

#include "support/print.h"

#include <QStringList>

#include <algorithm>

#include <gtest/gtest.h>

namespace {

// What the thinning at a moment leaves of backups that were made at these.
QList<QDateTime> thinned(const QList<QDateTime>& made, const QDateTime& now)
{
    const std::vector<bool> isKept = thinning::isKept({made.begin(), made.end()}, now);
    QList<QDateTime> left;
    for (qsizetype i = 0; i < made.size(); ++i)
        if (isKept[static_cast<std::size_t>(i)])
            left += made[i];
    return left;
}

} // namespace

// 24 November 2026 is a Tuesday.
TEST(Thinning, KeepsTheLastOfEachDayWeekAndMonthBackToTheDayInAnyOrder)
{
    const QStringList givenUp = {"2026-11-24T19:00:00", "2026-11-23T08:00:00", "2026-11-17T09:00:00",
        "2026-11-09T09:00:00", "2026-09-24T09:00:00", "2026-08-30T09:00:00", "2024-11-24T09:00:00"};
    const QStringList kept =
        QStringList({"2024-11-25T09:00:00", "2026-08-31T09:00:00", "2026-11-23T09:00:00", "2026-11-18T09:00:00",
            "2026-11-15T09:00:00", "2026-11-08T23:59:00", "2026-09-28T09:00:00", "2026-09-25T09:00:00"})
        + QStringList(10, "2026-11-24T20:00:00"); // the last ten
    QList<QDateTime> made;
    for (const QString& moment : givenUp + kept)
        made += QDateTime::fromString(moment, Qt::ISODate);
    QStringList left;
    for (const QDateTime& moment : thinned(made, made.last()))
        left += moment.toString(Qt::ISODate);
    EXPECT_EQ(left, kept);
    EXPECT_EQ(thinned({}, made.last()).size(), 0);
}

TEST(Thinning, OverThreeYearsOfThreeClosesADayLeavesAFewOfEachAge)
{
    const QDate today(2026, 11, 24);
    QList<QDateTime> left;
    for (QDate day(2023, 11, 1); day <= today; day = day.addDays(1))
        for (const int hour : {8, 13, 20})
            left = thinned(left + QList{QDateTime(day, QTime(hour, 0))}, QDateTime(day, QTime(hour, 0)));
    const QDate edges[] = {today.addYears(-2), today.addMonths(-2), today.addDays(-7), today.addDays(-3), today};
    std::vector<int> counts(std::size(edges));
    for (const QDateTime& moment : left)
        ++counts.at(static_cast<std::size_t>(std::lower_bound(edges, std::end(edges), moment.date()) - edges));
    // Eight Sundays and the ends of two months; the last ten closes begin three days before.
    EXPECT_EQ(counts, std::vector({0, 22, 10, 4, 9}));
    EXPECT_EQ(left.last(), QDateTime(today, QTime(20, 0)));
}
