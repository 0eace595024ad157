// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

class QApplication;

namespace forms {

/// Makes the application object, which windows need. Where the toolkit finds no display that it can use, the process
/// ends with this status and this line on the error output; the toolkit's own words, and its crash, are kept back.
std::unique_ptr<QApplication> openDisplay(int& argc, char* argv[], int statusWithout, const char* wordsWithout);

} // namespace forms
