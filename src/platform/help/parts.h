// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMargins>
#include <QString>

class QColor;
class QLabel;
class QPushButton;
class QWidget;

/// How the parts of the help window are made; for the window itself.
namespace help::parts {

struct ButtonLook {
    const char* name;
    const char* caption;
    const char* icon; ///< a picture of the resource folder of icons, by its name without ending
    const char* toolTip; ///< what it does, with its keys in parentheses
};

QPushButton* button(QWidget& parent, const ButtonLook& look);

/// The name under which tests know a part, the one under which assistive tools know it, and its tool tip.
void name(QWidget& widget, const char* objectName, const char* accessibleName, const char* toolTip);

/// Words in a line of their own, which screen readers say at once; without words there is no line.
void tell(QLabel& line, const QString& words);

void colour(QWidget& entry, const QColor& colour);

QMargins margins();

} // namespace help::parts
