// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>

#include <vector>

namespace thinning {

/// Tells, for each of the moments at which a backup was made, whether a close at `now` keeps it: the last ten, then the
/// last of each day for a week, the last of each week, from Monday on, for two months, the last of each month for two
/// years. A moment in the future, of a clock that was wrong, counts as one of the last.
std::vector<bool> isKept(const std::vector<QDateTime>& made, const QDateTime& now);

} // namespace thinning
