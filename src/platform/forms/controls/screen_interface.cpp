// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/controls/screen_interface.h"

#include "platform/forms/controls/displays.h"
#include "platform/forms/screens/form.h"
#include "platform/forms/screens/form_window.h"
#include "platform/forms/screens/notice.h"

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
    if (kind != QAccessible::Name)
        return QAccessibleWidget::text(kind);
    const QString heading = headingOf(form_);
    const QString name = heading.isEmpty() ? QAccessibleWidget::text(kind) : heading;
    return form_.spokenState().isEmpty() ? name : name + QStringLiteral(", ") + form_.spokenState();
}

namespace {

QAccessibleInterface* describeWindow(const QString&, QObject* object)
{
    if (auto* window = dynamic_cast<FormWindow*>(object))
        return new ScreenInterface(*window, window->form());
    if (auto* notice = dynamic_cast<Notice*>(object))
        return new QAccessibleWidget(notice, QAccessible::Notification);
    if (QAccessibleInterface* label = describeHelpLabel(object))
        return label;
    // A window that is no screen, as the help; the toolkit tells of a plain one as if it were a part of another.
    auto* widget = qobject_cast<QWidget*>(object);
    const bool isPlainWindow = widget && widget->isWindow() && widget->metaObject() == &QWidget::staticMetaObject;
    return isPlainWindow ? new QAccessibleWidget(widget, QAccessible::Window) : nullptr;
}

} // namespace

void describeWindows()
{
    QAccessible::installFactory(describeWindow);
}

} // namespace forms
