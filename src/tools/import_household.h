// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/import_plan.h"

namespace importing {

/// The rows of an export's name table that today's lacks. A row that it has more often comes as often as is missing.
std::vector<Plan::NameRow> newNameRows(const Source& source, const Household& today, const char* namesTable);

/// Plans the accounts of an export, but those whose number is there already.
void takeAccounts(const Source& source, const Household& today, Plan& plan);

/// Plans what an export knows of the household, where today's file knows nothing yet. What stands there stays.
/// Failures: Refusal, where it would stop the program.
void takeHousehold(const Source& source, const Household& today, Plan& plan);

} // namespace importing
