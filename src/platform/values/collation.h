// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace values {

/// Orders texts for a list that people read, alike under every locale. Signs stand before digits and digits before
/// letters. Letters go by their base letter; accents, and then case, small letters first, decide only between texts
/// that are else equal. Gives a number below, at or above zero.
int compareNames(const QString& a, const QString& b);

} // namespace values
