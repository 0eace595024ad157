// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/help/parts.h"

#include "platform/forms/look.h"

#include <QAccessible>
#include <QLabel>
#include <QPushButton>

namespace help::parts {

QPushButton* button(QWidget& parent, const ButtonLook& look)
{
    auto* made = new QPushButton(QString::fromLatin1(look.caption), &parent);
    forms::look::giveIcon(*made, QString::fromLatin1(look.icon));
    const QByteArray words = QByteArray(look.toolTip).split('(').first().trimmed();
    name(*made, look.name, words.constData(), look.toolTip);
    return made;
}

void name(QWidget& widget, const char* objectName, const char* accessibleName, const char* toolTip)
{
    widget.setObjectName(QString::fromLatin1(objectName));
    widget.setAccessibleName(QString::fromLatin1(accessibleName));
    widget.setToolTip(QString::fromLatin1(toolTip));
}

void tell(QLabel& line, const QString& words)
{
    line.setText(words);
    line.setVisible(!words.isEmpty());
    if (words.isEmpty())
        return;
    QAccessibleEvent alert(&line, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void colour(QWidget& entry, const QColor& colour)
{
    QPalette palette = entry.palette();
    palette.setColor(QPalette::Base, colour);
    entry.setPalette(palette);
}

QMargins margins()
{
    const int gap = forms::look::grid(1);
    return {gap, gap, gap, gap};
}

} // namespace help::parts
