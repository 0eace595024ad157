// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/import_plan.h"

namespace importing {

/// Some of what a plan has to tell, in lines of two columns: what it is about, and what is said of it.
struct Part {
    QString name; ///< "Rows That Can't Go In (2)"
    std::vector<QStringList> lines;
};

/// What a plan has to tell, the most urgent first; parts without a line aren't among them.
std::vector<Part> partsOf(const Plan& plan);

} // namespace importing
