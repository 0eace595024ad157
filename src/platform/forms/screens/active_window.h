// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>

namespace forms {

/// Makes a window the toolkit's active one at once. Qt 6.5 and newer would rather have the window system asked, which
/// answers later and says nothing about a window that has the focus already.
inline void takeForActive(QWidget* window)
{
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    QApplication::setActiveWindow(window);
    QT_WARNING_POP
}

} // namespace forms
