// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/data_store.h"
#include "core/earlier_backups.h"
#include "core/frmMain.h"
#include "core/places.h"
#include "core/thinning.h"
#include "platform/system/files.h"
#include "support/harness.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

using forms::Answer;
using forms::screen;

namespace {

QDateTime at(const char* moment)
{
    return QDateTime::fromString(moment, Qt::ISODate);
}

// What is left of closes at these moments, each followed by the thinning that the next one does.
std::vector<QDateTime> afterCloses(const std::vector<QDateTime>& closes)
{
    std::vector<QDateTime> left;
    for (const QDateTime& close : closes) {
        left.push_back(close);
        const std::vector<bool> kept = thinning::isKept(left, close);
        std::vector<QDateTime> next;
        for (std::size_t i = 0; i < left.size(); ++i)
            if (kept[i])
                next.push_back(left[i]);
        left = next;
    }
    return left;
}

int countSince(const std::vector<QDateTime>& moments, const QDate& since, const QDate& until)
{
    return static_cast<int>(std::count_if(moments.begin(), moments.end(),
        [&](const QDateTime& each) { return each.date() > since && each.date() <= until; }));
}

} // namespace

TEST(Thinning, KeepsTheLastOfEachDayWeekAndMonthBackToTheDay)
{
    struct Case {
        const char* made;
        bool isKept;
    };
    // Ten that are kept as the last ones, then the edges of each span; 24 November 2026 is a Tuesday.
    std::vector<Case> cases(10, {"2026-11-24T20:00:00", true});
    const Case edges[] = {{"2026-11-24T19:00:00", false}, {"2026-11-23T09:00:00", true}, {"2026-11-23T08:00:00", false},
        {"2026-11-18T09:00:00", true}, {"2026-11-17T09:00:00", false}, {"2026-11-15T09:00:00", true},
        {"2026-11-09T09:00:00", false}, {"2026-11-08T23:59:00", true}, {"2026-09-28T09:00:00", true},
        {"2026-09-25T09:00:00", true}, {"2026-09-24T09:00:00", false}, {"2026-08-31T09:00:00", true},
        {"2026-08-30T09:00:00", false}, {"2024-11-25T09:00:00", true}, {"2024-11-24T09:00:00", false}};
    cases.insert(cases.end(), std::begin(edges), std::end(edges));
    std::reverse(cases.begin(), cases.end()); // in any order
    std::vector<QDateTime> made;
    for (const Case& each : cases)
        made.push_back(at(each.made));
    const std::vector<bool> kept = thinning::isKept(made, at("2026-11-24T20:00:00"));
    for (std::size_t i = 0; i < cases.size(); ++i)
        EXPECT_EQ(kept[i], cases[i].isKept) << cases[i].made;
    EXPECT_TRUE(thinning::isKept({}, at("2026-11-24T20:00:00")).empty());
}

TEST(Thinning, OverThreeYearsOfThreeClosesADayLeavesAFewOfEachAge)
{
    std::vector<QDateTime> closes;
    for (QDate day(2023, 11, 1); day <= QDate(2026, 11, 24); day = day.addDays(1))
        for (const int hour : {8, 13, 20})
            closes.emplace_back(day, QTime(hour, 0));
    const std::vector<QDateTime> left = afterCloses(closes);
    const QDate today(2026, 11, 24);
    EXPECT_EQ(left.back(), closes.back());
    EXPECT_EQ(countSince(left, today.addDays(-3), today), 9) << "the last ten closes begin on the day before";
    EXPECT_EQ(countSince(left, today.addDays(-7), today.addDays(-3)), 4);
    EXPECT_EQ(countSince(left, today.addMonths(-2), today.addDays(-7)), 10)
        << "eight Sundays and the ends of two months";
    EXPECT_EQ(countSince(left, today.addYears(-2), today.addMonths(-2)), 22);
    EXPECT_EQ(countSince(left, today.addYears(-9), today.addYears(-2)), 0);
}

namespace {

class EarlierBackups : public ScreenTest {
protected:
    static QString backupFile() { return places::backupFolder() + "/KTL.db"; }

    static QByteArray contentsOf(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
    }

    static void putBackup(const QByteArray& contents, const QDateTime& made)
    {
        QDir().mkpath(places::backupFolder());
        QFile::remove(backupFile());
        QFile file(backupFile());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
        file.flush();
        ASSERT_TRUE(file.setFileTime(made, QFileDevice::FileModificationTime));
    }

    void closeProgram()
    {
        screen<frmMain>().show();
        expectBox("Are You Sure You Want To Close Kestrill?", 36, Answer::Yes);
        click(screen<frmMain>().cmdLeave);
    }

    static QStringList names()
    {
        QStringList names;
        for (const earlier::KeptFile& kept : earlier::all())
            names.append(kept.name);
        return names;
    }
};

} // namespace

TEST_F(EarlierBackups, AreKeptByALinkOfWhatTheCloseReplaces)
{
    const QDateTime yesterday = QDateTime::currentDateTime().addDays(-1);
    putBackup("of yesterday", yesterday);
    earlier::keep_Backup(); // a close that broke off
    EXPECT_TRUE(sys::isSameFile(earlier::all().at(0).file, backupFile())) << "costs nothing";
    closeProgram();
    ASSERT_EQ(names(), QStringList(yesterday.toString("yyyy-MM-dd_HH-mm-ss"))) << "once, though two have tried";
    const QFileInfo kept(earlier::all().at(0).file);
    EXPECT_EQ(contentsOf(kept.filePath()), "of yesterday");
    EXPECT_EQ(QFile::permissions(kept.path()), QFile::Permissions(0x7700)) << "its user alone";
    EXPECT_EQ(contentsOf(backupFile()), contentsOf(places::databaseFile()));

    putBackup("another of that second", yesterday);
    earlier::keep_Backup();
    EXPECT_EQ(names().size(), 2);
    EXPECT_TRUE(names().contains(yesterday.toString("yyyy-MM-dd_HH-mm-ss") + "_2"));
}

TEST_F(EarlierBackups, AreThinnedAndLeaveWhatIsNotTheirs)
{
    const QDateTime now = QDateTime::currentDateTime();
    for (int close = 0; close < 14; ++close) {
        putBackup("x", now.addDays(-1000 - close));
        earlier::keep_Backup();
    }
    EXPECT_EQ(names().size(), 10) << "too old, but the last ten";
    const QString aside = earlier::folderFor(now.addYears(-9), true);
    sys::makePrivateFolder(aside);
    sys::keepFile(backupFile(), aside + "/KTL.db");
    QDir(places::earlierBackupsFolder()).mkdir("notes");
    for (int close = 0; close < 10; ++close) {
        putBackup("y", now.addSecs(-60 * close));
        earlier::keep_Backup();
    }
    EXPECT_EQ(names().size(), 11);
    EXPECT_TRUE(names().last().endsWith("_put-aside")) << "only its user gives it up";
    EXPECT_EQ(QDir(places::earlierBackupsFolder()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 12);
}

// Files without contents seem large and take no room.
TEST_F(EarlierBackups, TakeNoMoreThanATenthOfTheFreeDisk)
{
    const QDateTime now = QDateTime::currentDateTime();
    const qint64 third = sys::freeSpace(places::databaseFolder()) / 30;
    for (int close = 0; close < 4; ++close) {
        putBackup({}, now.addSecs(-60 * (10 - close)));
        ASSERT_TRUE(QFile::resize(backupFile(), third / 100 * 99));
        QFile file(backupFile());
        ASSERT_TRUE(file.open(QIODevice::ReadWrite)
            && file.setFileTime(now.addSecs(-60 * (10 - close)), QFileDevice::FileModificationTime));
        earlier::keep_Backup();
    }
    EXPECT_EQ(names().size(), 3);
    EXPECT_EQ(names().last(), now.addSecs(-540).toString("yyyy-MM-dd_HH-mm-ss")) << "the oldest has gone";
}

TEST_F(EarlierBackups, ThatCantBeKeptEndangerNeitherTheCloseNorTheBackup)
{
    putBackup("of yesterday", QDateTime::currentDateTime().addDays(-1));
    QFile inTheWay(places::earlierBackupsFolder());
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    testing::internal::CaptureStderr();
    closeProgram();
    EXPECT_THAT(testing::internal::GetCapturedStderr(), testing::HasSubstr("Earlier backups: File failure"));
    EXPECT_EQ(contentsOf(backupFile()), contentsOf(places::databaseFile()));
}
