// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

namespace forms {

/// As often as an eye can follow.
inline constexpr qint64 repaintMilliseconds = 40;

/// Paints what the window system wants painted of the screen in front, while a handler works on: called at each step of
/// a long work, it paints no more often than an eye can follow. No user input is handled meanwhile.
void keepPainted();

} // namespace forms
