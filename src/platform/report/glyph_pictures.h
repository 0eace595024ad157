// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPainter>
#include <QString>

namespace report {

/// Paints a line in which a font holds characters as coloured pictures, as it does an emoji; false, with nothing
/// painted, where there is none. Drawn as a text they would be left out of a PDF file, and where the painter is scaled,
/// and the toolkit would then remember a wrong width of them.
bool paintPictures(QPainter& painter, QPointF baseLine, const QString& text);

} // namespace report
