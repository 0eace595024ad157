// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/household.h"

#include <vector>

namespace mending {

/// Something that a household's file is mended by without a guess.
struct Mend {
    enum class Kind { RunningTotal, Alert, MarkerRow };

    Kind kind;
    const char* table; ///< where it is done
    QString words; ///< what is done, as an order

    bool operator==(const Mend& other) const { return kind == other.kind && words == other.words; }
};

/// What can be mended: a running total that is no longer the sum, where all amounts can be read; an alert by which the
/// program doesn't start, which is turned off; a row that is missing and leads to the list editors.
std::vector<Mend> possible(const Household& household);

/// Mends today's file. Before, it is copied to what restores have put aside, and the copy read through; the name by
/// which it can be restored is given back. All of it is one commit: whenever this is broken off, the file is the one or
/// the other. Failures: Refusal, where the program runs, where these mends are no longer those that are possible, and
/// where the system refuses; the file is then as it was.
QString carry_Out(const std::vector<Mend>& mends);

} // namespace mending
