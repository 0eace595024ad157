// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

class QWidget;

namespace report {

/// What a file to be saved is asked for.
struct SaveQuestion {
    QString folder; ///< to begin with
    QString file; ///< the name suggested, without its ending
    bool hasTable; ///< the report can be saved as a table too
};

/// True when a file of this name holds a table, by its ending.
bool isTable(const QString& path);

/// Asks where a report is saved and as what. The file has the ending of the kind that was chosen, unless the user has
/// typed the other kind's; one that is there is replaced only after a question. Nothing where the user cancels, or the
/// window is gone by then.
std::optional<QString> askForFile(const SaveQuestion& question, QWidget* window);

} // namespace report
