// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/backups.h"

#include <functional>

namespace restoring {

/// What stands in place of the household's file once it is laid down.
struct Result {
    QString summary; ///< of what is there now
    QString putAside; ///< the name under which today's file can be restored in turn; empty where there was none
    QString doubt; ///< why it isn't sure that a power cut would leave the backup there; empty where it is
};

/// The words for a doubt.
QString doubtText(const Result& result);

/// Told before each step that changes a file, with its number from 1 on.
using Steps = std::function<void(int step)>;

/// How many steps there are at most.
inline constexpr int StepCount = 10;

/// Lays a backup down in place of today's file, which is put aside with its journal.
///
/// Whenever it breaks off, by a failure, by the end of the process or by a power cut, the household's file is today's
/// or the backup. A failure leaves today's in place. While it runs neither the program nor another restore gets in.
/// Failures: Refusal.
Result lay_Down(const Backup& chosen, const Steps& steps = {});

/// Refuses while the program has the household's file open. Failures: Refusal.
void refuse_While_Running();

/// The lock in the folder of earlier backups that keeps out who else puts today's file aside.
inline const QString LockName = QStringLiteral(".restoring");

/// Removes what a restore or a mend that was killed has begun to put aside. The lock must be held.
void clear_Remains();

/// Where a restore that was killed has left a file put aside that is still today's by another name, gives it a copy of
/// its own. What fails is tried again the next time.
void part_From_Today();

} // namespace restoring
