// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/household.h"

#include <QStringList>

namespace checking {

/// What in a household is not as the program writes it, one line for each cell: dates and amounts that can't be read,
/// words that are none of those allowed, marks of emptiness that are missing, a running total that is not the sum of
/// the amounts. What can be read so far stays readable: nothing of it is damage.
QStringList odd_Entries(const Household& household);

/// The sums that are compared.
QString sums(const Household& household);

} // namespace checking
