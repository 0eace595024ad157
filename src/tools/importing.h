// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/import_plan.h"

namespace importing {

/// What stands in the household's file once a plan is carried out.
struct Result {
    QString summary; ///< of what is there now
    QString putAside; ///< the name under which the file before can be restored
};

/// Carries a plan out on today's file. Before, the file is copied among the earlier backups and the copy read through.
/// All rows are one commit: whenever this is broken off, the file is the one or the other. Failures: Refusal, where the
/// program runs, where the file is another one than the plan was made for, where wrong rows keep it out, where it was
/// cancelled, and where the system refuses; the file is then as it was.
Result carry_Out(const Plan& plan, const Progress& progress = {});

/// The same, with the wrong rows of its source written into a new file before, unless its name is empty. That file is
/// taken away again where the import is refused.
Result carry_Out(const Source& source, const Plan& plan, const QString& wrongFile, const Progress& progress = {});

/// Writes the wrong rows of a source into a new file of the same headings, with a column more that says why. Failures:
/// Refusal, where there is a file already and where the system refuses.
void write_Wrong_Rows(const Source& source, const Plan& plan, const QString& file);

/// Takes a file of wrong rows away again.
void remove_File(const QString& file);

/// Writes a table with the headings and two lines of example into a new file. Failures: Refusal.
void write_Template(const QString& file);

} // namespace importing
