// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/look.h"

#include <vector>

/// How the last window of a tool looks, which tells what has been done: a heading, some paragraphs, Close.
namespace outcome {

struct Parts {
    forms::Form& outcome;
    forms::Label& heading;
    std::vector<forms::Label*> paragraphs; ///< the first one tells the most
    forms::CommandButton& cmdClose;
    forms::Label& lblSelIn;
    forms::Label& lblCopyright;
};

void lookOf(const Parts& parts);

} // namespace outcome
