// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Cells of the name tables that are no names of the user's.
namespace names {

/// The cell of a row that holds no name in a column.
inline const QString Blank = QStringLiteral("0");

/// The names that lead to the list editors, except that no editor has items. They stand in the tables among the others.
inline const QString LocationMarker = QStringLiteral("< Add/Edit Location >");
inline const QString CategoryMarker = QStringLiteral("< Add/Edit Category >");
inline const QString ItemMarker = QStringLiteral("< Add/Edit Item >");

} // namespace names
