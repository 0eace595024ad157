// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/thinning.h"

#include "support/print.h"
#include "support/scene.h"

#include <QStringList>

#include <gmock/gmock.h>

#include <algorithm>

namespace {

constexpr qint64 Plenty = 1'000'000;

QDateTime at(const QString& moment)
{
    return QDateTime::fromString(moment, Qt::ISODate);
}

// One each evening, from a day on, back to another one.
std::vector<thinning::Kept> evenings(const QString& last, const QString& first)
{
    std::vector<thinning::Kept> kept;
    for (QDateTime made = at(last + "T20:00:00"); made >= at(first + "T20:00:00"); made = made.addDays(-1))
        kept.push_back({made, 1});
    return kept;
}

// What is left, by its days.
QStringList left(std::vector<thinning::Kept> kept, const QString& now, qint64 room = Plenty)
{
    std::vector<std::size_t> gone = thinning::givenUp(kept, at(now), room);
    std::ranges::sort(gone, std::greater());
    for (const std::size_t index : gone)
        kept.erase(kept.begin() + static_cast<std::ptrdiff_t>(index));
    QStringList left;
    for (const thinning::Kept& each : kept)
        left += each.made.date().toString(Qt::ISODate);
    return left;
}

} // namespace

// 24 November 2026 is a Tuesday.
TEST(Thinning, KeepsTheLastOfEachDayWeekAndMonthBackToTheDay)
{
    std::vector<thinning::Kept> kept = evenings("2026-11-24", "2022-01-01");
    QStringList wanted;
    for (int day = 24; day > 14; --day)
        wanted += QString("2026-11-%1").arg(day); // the last ten, a week among them
    wanted += {"2026-11-08", "2026-11-01", "2026-10-31", "2026-10-25", "2026-10-18", "2026-10-11", "2026-10-04",
        "2026-09-30", "2026-09-27", "2026-08-31"};
    for (QDate month(2026, 8, 1); month > QDate(2024, 12, 1); month = month.addMonths(-1))
        wanted += month.addDays(-1).toString(Qt::ISODate);
    wanted += "2024-11-30";
    EXPECT_EQ(left(kept, "2026-11-24T21:00:00"), wanted);
    std::ranges::reverse(kept);
    std::ranges::reverse(wanted);
    EXPECT_EQ(left(kept, "2026-11-24T21:00:00"), wanted) << "in any order";
    for (int minute = 10; minute < 22; ++minute)
        kept.push_back({at(QString("2026-11-24T20:%1:00").arg(minute)), 1});
    const QStringList busy = left(kept, "2026-11-24T21:00:00");
    EXPECT_EQ(line(busy.count("2026-11-24"), busy.count("2026-11-23"), busy.count("2026-11-17")), "10, 1, 0");
}

TEST(Thinning, TellsAgesByTheOrderWhereTheClockHasJumped)
{
    std::vector<thinning::Kept> kept = evenings("2026-11-24", "2025-01-01");
    const QStringList before = left(kept, "2026-11-24T21:00:00");
    const auto months = [](const QStringList& days) {
        QStringList found;
        for (const QString& day : days)
            found += day.left(7);
        found.removeDuplicates();
        return found;
    };
    // One close ten years ahead, two of them, and the clock right again.
    EXPECT_EQ(months(left(kept, "2036-11-24T21:00:00")), months(before));
    std::vector<thinning::Kept> wrong = kept;
    wrong.push_back({at("2036-11-24T21:00:00"), 1});
    EXPECT_EQ(months(left(wrong, "2036-11-25T21:00:00")), months(before) + QStringList("2036-11"));
    EXPECT_EQ(left(wrong, "2026-11-24T21:00:00"), before + QStringList("2036-11-24"));
    for (int day = 1; day < 30; ++day)
        wrong.push_back({at("2036-11-24T21:00:00").addDays(day), 1});
    EXPECT_EQ(left(wrong, "2026-11-24T21:00:00", 1).first(2), QStringList({"2026-11-24", "2026-10-31"}));
    // And in the past, for one close.
    EXPECT_EQ(left(kept, "1970-01-01T00:00:00"), before);
    EXPECT_EQ(left({}, "1970-01-01T00:00:00"), QStringList());
}

TEST(Thinning, GivesUpDenseRecentOnesWhereThereIsNoRoomAndKeepsTheNewestTheOldestAndTheMonths)
{
    std::vector<thinning::Kept> kept = evenings("2026-11-24", "2025-12-25");
    const auto oldest = [&kept](qsizetype room) { return left(kept, "2026-11-24T21:00:00", room); };
    const QStringList all = oldest(Plenty);
    QStringList rooms;
    for (qsizetype room = all.size() - 1; room >= 0; --room) {
        const QStringList now = oldest(room);
        for (const QString& gone : oldest(room + 1))
            if (!now.contains(gone))
                rooms += gone;
    }
    // The last ten that are no day's any more, then days, then weeks.
    EXPECT_EQ(rooms.join(' '),
        "2026-11-16 2026-11-17 2026-11-18 2026-11-19 2026-11-20 2026-11-21 2026-11-23 "
        "2026-09-27 2026-10-04 2026-10-11 2026-10-18 2026-10-25 2026-11-01 2026-11-08 2026-11-15 2026-11-22");
    EXPECT_EQ(oldest(0).first(4), QStringList({"2026-11-24", "2026-10-31", "2026-09-30", "2026-08-31"}));
    EXPECT_EQ(oldest(0).last(), "2025-12-31");
    kept[5].isProved = kept[7].isProved = true;
    EXPECT_EQ(oldest(0).first(3), QStringList({"2026-11-24", "2026-11-19", "2026-10-31"})) << "the newest proved";
}
