// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/thinning.h"

#include "support/files.h"
#include "support/print.h"

#include <QStringList>

#include <algorithm>

namespace {

// What closes have left, and what goes at the next one, as the list has it: by their days.
class Closes {
public:
    QString follow(const QString& step)
    {
        const QStringList words = step.split(' ');
        if (words[0] == "evenings")
            evenings(at(words[1] + "T20:00"), at(words[2] + "T20:00"));
        else if (words[0] == "minutes")
            for (int minute = 0; minute < words[2].toInt(); ++minute)
                kept_.push_back({at(words[1]).addSecs(60 * minute), 1});
        else if (words[0] == "days")
            for (int day = 0; day < words[2].toInt(); ++day)
                kept_.push_back({at(words[1]).addDays(day), 1});
        else if (words[0] == "reverse")
            std::ranges::reverse(kept_);
        else if (words[0] == "proved")
            kept_[words[1].toUInt()].isProved = true;
        else
            return told(left(at(words[1]), words.value(2, "1000000").toInt()));
        return {};
    }

private:
    static QDateTime at(const QString& moment) { return QDateTime::fromString(moment, Qt::ISODate); }

    // One each evening, from a day on, back to another one.
    void evenings(const QDateTime& last, const QDateTime& first)
    {
        kept_.clear();
        for (QDateTime made = last; made >= first; made = made.addDays(-1))
            kept_.push_back({made, 1});
    }

    QStringList left(const QDateTime& now, qint64 room) const
    {
        const std::vector<std::size_t> gone = thinning::givenUp(kept_, now, room);
        QStringList left;
        for (std::size_t index = 0; index < kept_.size(); ++index)
            if (std::ranges::find(gone, index) == gone.end())
                left += kept_[index].made.date().toString(Qt::ISODate);
        return left;
    }

    // "2026-11: 24 23 22; 2026-10: 31".
    static QString told(const QStringList& days)
    {
        QStringList months;
        for (const QString& day : days) {
            const QString month = day.left(7) + ':';
            if (months.isEmpty() || !months.last().startsWith(month))
                months += month;
            months.last() += ' ' + day.mid(8);
        }
        return months.join("; ");
    }

    std::vector<thinning::Kept> kept_;
};

} // namespace

TEST(Thinning, LeavesWhatTheListHas)
{
    Closes closes;
    expectSteps("core/thinning.txt", [&closes](const QString& step) { return closes.follow(step); });
}
