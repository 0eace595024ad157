// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <ostream>

/// How a QString reads in a failed expectation. It stands in the global namespace, where Qt's class stands.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}
