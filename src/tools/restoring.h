// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/system/processes.h"
#include "tools/backups.h"

#include <functional>

namespace restoring {

/// What stands in place of the household's file once it is laid down.
struct Result {
    QString summary; ///< of what is there now
    QString putAside; ///< the name under which today's file can be restored in turn; empty where there was none
};

/// Told before each step that changes a file, with its number from 1 on.
using Steps = std::function<void(int step)>;

/// How many steps there are at most.
inline constexpr int StepCount = 11;

/// Lays a backup down in place of today's file, which is put aside with its journal.
///
/// Whenever it breaks off, by a failure, by the end of the process or by a power cut, the household's file is today's
/// or the backup. A failure leaves today's in place. While it runs neither the program nor another restore gets in.
/// Failures: Refusal.
Result lay_Down(const Backup& chosen, const Steps& steps = {});

/// Refuses while the program runs. Failures: Refusal.
void refuse_While_Running();

/// The list of processes that it looks through; tests give their own.
extern std::function<std::vector<sys::Process>()> list_Processes;

} // namespace restoring
