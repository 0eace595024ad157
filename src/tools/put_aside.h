// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/system/files.h"
#include "tools/household.h"

#include <functional>

/// What is done before today's file is written into, and how the writing ends.
namespace aside {

/// Fills today's file behind a copy of it among those put aside.
///
/// `refuseStale` is given the rows as they are once nobody else can change them, and refuses where they are other ones
/// than the change was thought out for. `change` writes; it is given the number of the last transaction that the copy
/// holds, and refuses where the file has another one. Gives the name under which the copy can be restored.
/// Failures: Refusal, where the program runs, another restore is under way, or the system refuses; nothing is changed
/// then and no copy is left.
QString changeBehindCopy(const std::function<void(const Household& today)>& refuseStale,
    const std::function<void(qint64 generation)>& change);

/// The refusal of a file that has changed in between.
[[noreturn]] void refuseStale();

} // namespace aside
