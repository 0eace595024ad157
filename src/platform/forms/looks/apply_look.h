// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QApplication;

namespace forms::look {

/// Puts style, palette and font in place. The font is the desktop's, or a larger one where that is too small to read.
void apply(QApplication& application);

} // namespace forms::look
