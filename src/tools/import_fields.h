// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/data_store.h"

#include <QStringList>

#include <optional>
#include <vector>

namespace importing {

/// Where a column of a table goes.
struct Target {
    enum Kind { LeftOut, Field, EndOfDescription };

    Kind kind = LeftOut;
    Inventory::Column column = Inventory::ID; ///< of a field

    bool operator==(const Target&) const = default;
};

/// The names of all there are, as the asset screen has them: the fields in its order, "End Of Description", "Left Out".
QStringList targetNames();
QString nameOf(const Target& target);

/// The target of that name, without regard to case, or of another word for it.
std::optional<Target> targetNamed(const QString& name);

/// The name of a field.
QString nameOf(Inventory::Column column);

/// A column of a table, as far as it tells where it goes.
struct ColumnSeen {
    QString heading;
    QString example; ///< the first text in it; empty where there is none
    int filled = 0; ///< how many rows have a text in it
};

/// Finds by their headings where columns go. A column of which nothing is known goes to the end of the description, one
/// without texts nowhere.
std::vector<Target> targetsOf(const std::vector<ColumnSeen>& columns);

/// Whether a heading is one that is known.
bool isKnownHeading(const QString& heading);

/// The heading of the column that a file of wrong rows has more than its source. It goes nowhere.
inline const QString ReasonHeading = QStringLiteral("What Is Wrong");

} // namespace importing
