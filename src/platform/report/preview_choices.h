// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/report/page_view.h"

#include <array>
#include <optional>
#include <span>

namespace report {

/// What a preview offers in its lists.
struct ZoomChoice {
    const char* words;
    Zoom zoom;
};
std::span<const ZoomChoice> zooms();
std::span<const Paper> papers();

/// The place of a choice in its list.
int indexOf(const Zoom& zoom);
int indexOf(const Paper& paper);

/// The next larger (+1) or smaller (-1) factor of the list; none at its end.
std::optional<Zoom> nextZoom(double factor, int direction);

} // namespace report
