// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/looks/theme.h"

#include <QFontMetrics>
#include <QScreen>

#include <algorithm>

namespace forms {

/// The width of the longest line of a box with words, in pixels: one on which the eye still finds its way, as far as
/// the desktop has room for it beside icon and margins.
inline int longestLine(const QFontMetrics& metrics, const QScreen& screen)
{
    constexpr int characters = 60;
    return std::min(metrics.averageCharWidth() * characters, screen.availableGeometry().width() - look::grid(16));
}

} // namespace forms
