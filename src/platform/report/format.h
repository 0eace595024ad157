// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace report {

enum class Format {
    Text, ///< as it is stored, a tab as a blank
    Amount, ///< "$1,234.50", and "-$15.00" below zero; a text that is no amount as it is stored
};

/// A value as it is printed.
QString formatted(const QString& value, Format format);

/// A value as a spreadsheet reads it: an amount as a plain number, "1234.50".
QString plain(const QString& value, Format format);

} // namespace report
