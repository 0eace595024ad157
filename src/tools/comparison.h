// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/household.h"

#include <QStringList>

/// What of today's household a backup doesn't have, one line for each kind; what would come back as well. No line where
/// both hold the same.
QStringList what_Is_Lost(const Household& today, const Household& backup);
