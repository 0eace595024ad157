// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/thinning.h"

#include "support/print.h"

#include <QStringList>

#include <gtest/gtest.h>

// 24 November 2026 is a Tuesday.
TEST(Thinning, KeepsTheLastOfEachDayWeekAndMonthBackToTheDayInAnyOrder)
{
    const QStringList givenUp = {"2026-11-24T19:00:00", "2026-11-23T08:00:00", "2026-11-17T09:00:00",
        "2026-11-09T09:00:00", "2026-09-24T09:00:00", "2026-08-30T09:00:00", "2024-11-24T09:00:00"};
    const QStringList kept =
        QStringList({"2024-11-25T09:00:00", "2026-08-31T09:00:00", "2026-11-23T09:00:00", "2026-11-18T09:00:00",
            "2026-11-15T09:00:00", "2026-11-08T23:59:00", "2026-09-28T09:00:00", "2026-09-25T09:00:00"})
        + QStringList(10, "2026-11-24T20:00:00"); // the last ten
    std::vector<QDateTime> made;
    for (const QString& moment : givenUp + kept)
        made.push_back(QDateTime::fromString(moment, Qt::ISODate));
    const std::vector<bool> isKept = thinning::isKept(made, made.back());
    QStringList left;
    for (std::size_t i = 0; i < made.size(); ++i)
        if (isKept[i])
            left += made[i].toString(Qt::ISODate);
    EXPECT_EQ(left, kept);
}
