// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/standard_names.h"

/// The names of the three areas.
struct StandardNames {
    NameTriples indoor;
    NameTriples outdoor;
    NameTriples mobile;
};

/// Makes the database as it comes with the program, in a new file: the household's one row with nothing told yet, the
/// standard names, and no assets or accounts. Failures: File, where there is a file already; Database.
void createShippedDatabase(const QString& path, const StandardNames& names);
