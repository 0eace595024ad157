// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/data_store.h"

/// The check boxes of the asset screen, whose state the household's record remembers.
namespace settings {

/// Reads a column of "Checked" and "Unchecked": 1 for "Checked", 0 for any other text.
int remembered(General::Column column);

/// Writes the state of a check box to the record at once.
void remember(General::Column column, int value);

} // namespace settings
