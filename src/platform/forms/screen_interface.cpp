// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/screen_interface.h"

#include "platform/forms/displays.h"
#include "platform/forms/form.h"

#include <QStringList>
#include <QWidget>

namespace forms {

namespace {

QString captionsOf(const Form& form, TextRole role)
{
    QStringList captions;
    for (const Control* control : form.controls())
        if (const auto* label = dynamic_cast<const Label*>(control); label && label->role() == role)
            captions.append(label->caption().trimmed());
    return captions.join(QLatin1Char(' '));
}

// A screen without a heading is called what its picture shows.
QString headingOf(const Form& form)
{
    for (const TextRole role : {TextRole::Title, TextRole::Heading, TextRole::Instruction})
        if (QString heading = captionsOf(form, role); !heading.isEmpty())
            return heading;
    for (const Control* control : form.controls())
        if (dynamic_cast<const Picture*>(control))
            return control->widget()->accessibleName();
    return {};
}

} // namespace

ScreenInterface::ScreenInterface(QWidget& window, const Form& form)
    : QAccessibleWidget(&window, QAccessible::Window)
    , form_(form)
{
}

QString ScreenInterface::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Name)
        if (QString heading = headingOf(form_); !heading.isEmpty())
            return heading;
    return QAccessibleWidget::text(kind);
}

} // namespace forms
