// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/system/processes.h"

/// How many of these processes run the program. Any counts whose name holds the product's, on purpose. Of two starts at
/// the same moment the younger gives way: seen from `self`, a younger twin doesn't count.
int countRunning(const std::vector<sys::Process>& processes, const sys::Process& self);
