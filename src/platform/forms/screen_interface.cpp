// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/screen_interface.h"

#include "platform/forms/boundary.h"
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
    if (kind != QAccessible::Name)
        return QAccessibleWidget::text(kind);
    const QString heading = headingOf(form_);
    const QString name = heading.isEmpty() ? QAccessibleWidget::text(kind) : heading;
    return form_.spokenState().isEmpty() ? name : name + QStringLiteral(", ") + form_.spokenState();
}

// ---- what a screen has read out

void Form::setSpokenState(const QString& words)
{
    if (words == spokenState_)
        return;
    spokenState_ = words;
    QAccessibleEvent renamed(window(), QAccessible::NameChanged);
    QAccessible::updateAccessibility(&renamed);
}

void Form::announce(const QString& words)
{
    const ToolkitCall call;
    delete notice_; // a screen reader may remember the name of one that it knows
    notice_ = new Notice(canvas_);
    notice_->setAccessibleName(words);
    notice_->show();
}

Notice::Notice(QWidget* screen)
    : QWidget(screen)
{
    setFixedSize(1, 1);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

} // namespace forms
