// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/runtime/runtime.h"

namespace forms {

/// Tells the user that the program ends by a failure: what could not be done, in the words of the screen on which it
/// was asked for; why, as far as a householder can use it; the closing words. What finds the cause stands below, small,
/// to be copied. Returns when the user closes the box.
void showFailure(const FailureReport& report, const QString& title, const QString& closingWords);

} // namespace forms
