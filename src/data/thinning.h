// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>

#include <cstddef>
#include <vector>

namespace thinning {

/// A backup that is kept.
struct Kept {
    QDateTime made;
    qint64 size = 0; ///< bytes that go free with it
    bool isProved = false; ///< it was read to its last page, and hasn't changed since
};

/// Tells which of them a close gives up that takes place at `now`, in the order in which they go.
///
/// By their age: kept are the last ten, the last of each day for a week, the last of each week, from Monday on, for two
/// months, the last of each month for two years. Ages are counted from backup to backup, and a gap of more than a month
/// counts as a month: the clock may have jumped. What was made after `now`, by a clock that was wrong then or is now,
/// is a row of its own, in which the newest has no age.
///
/// By their room, where what is left takes more than `room`: first those that are kept as one of the last ten alone,
/// then the last of days, then those of weeks, each time the oldest first. The newest and the oldest of each row and
/// the last of each month stay, whatever room they take.
///
/// The newest that was proved is never given up.
std::vector<std::size_t> givenUp(const std::vector<Kept>& kept, const QDateTime& now, qint64 room);

} // namespace thinning
