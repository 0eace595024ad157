// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/looks/theme.h"

#include <QFileDialog>
#include <QScreen>

namespace forms {

/// Has the toolkit's own file dialogue open at a size where nothing of it is cut, as far as the desktop has room: by
/// itself it takes no account of the font. A desktop's dialogue has a size of its own.
inline void giveRoom(QFileDialog& dialog)
{
    const QSize desktop = dialog.screen()->availableSize();
    const QSize wanted(look::grid(100), look::grid(56));
    dialog.resize(wanted.boundedTo({desktop.width(), desktop.height() * 9 / 10})); // below a title bar
}

} // namespace forms
