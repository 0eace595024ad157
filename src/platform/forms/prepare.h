// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QApplication;

namespace forms {

namespace look {
struct Theme;
}

/// Prepares the toolkit for forms: style, palette in the colours of the theme, the focus rules. Call once, before the
/// first screen is made.
void prepare(QApplication& application, const look::Theme& theme);

} // namespace forms
