// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/household.h"

#include <vector>

namespace checking {

/// Something that is not as the program writes it: in words, with the place where a user mends it.
struct Finding {
    QString words;
    bool stops = false; ///< the program ends where it meets it
};

/// All of them, one for each cell: dates and amounts that can't be read, words that are none of those allowed, marks of
/// emptiness that are missing, a running total that is not the sum of the amounts, what goes beyond the 16 bits of the
/// screens. What can be read so far stays readable: nothing of it is damage.
std::vector<Finding> findings(const Household& household);

/// The sums that are compared.
QString sums(const Household& household);

/// What a mend needs no guess for, in detail.
bool is_Total_Off(const Household& household); ///< not where the sum is unknown
bool does_Alert_Stop(const Household& household);
bool lacks_Marker_Row(const storage::Snapshot& table);

inline constexpr const char* NameTables[] = {"Indoor_Items", "Outdoor_Items", "Mobile_Items"};

/// Whether every amount can be read, so that their sum is known.
bool is_Sum_Known(const Household& household);

} // namespace checking
