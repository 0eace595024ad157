// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/scene.h"

#include "frame/frmStartup.h"
#include "support/user.h"

#include <QApplication>
#include <QWidget>

namespace {

QString focusOf(const forms::Form& form)
{
    const forms::Control* control = form.activeControl();
    if (!control)
        return {};
    const auto* entry = dynamic_cast<const forms::TextEntry*>(control);
    const QString selected = entry ? entry->text().mid(entry->selectionStart(), entry->selectionLength()) : QString();
    return ": " + control->name() + (selected.isEmpty() ? QString() : " [" + selected + ']');
}

QString marksOf(const forms::Control& control)
{
    return QString(control.isEnabled() ? "" : " off") + (control.isVisible() ? "" : " hidden");
}

// Empty where there is nothing to tell.
QString told(const forms::Control& control)
{
    const QString marks = marksOf(control);
    if (const auto* entry = dynamic_cast<const forms::TextEntry*>(&control))
        return control.name() + '=' + entry->text() + (entry->isLocked() ? " locked" : "") + marks;
    const auto* option = dynamic_cast<const forms::OptionButton*>(&control);
    const auto* check = dynamic_cast<const forms::CheckBox*>(&control);
    if ((option && option->value()) || (check && check->value() == 1))
        return control.name() + " on" + marks;
    return marks.isEmpty() ? QString() : control.name() + marks;
}

} // namespace

QString scene()
{
    const forms::Form* front = forms::activeForm();
    QStringList others;
    for (const QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && !window->windowRole().isEmpty() && (!front || window != front->window()))
            others += window->windowRole();
    others.sort();
    others.prepend(front ? front->name() + (front->isEnabled() ? "" : " off") + focusOf(*front) : "nothing");
    return QString::number(frmStartup::CurrentScreen) + ' ' + others.join("; ");
}

QString contents(const forms::Form& form)
{
    QStringList all;
    for (const forms::Control* control : form.controls())
        all += told(*control);
    all.removeAll(QString());
    return all.join(", ");
}

QString ring(const forms::Form& form)
{
    QStringList names;
    do {
        names += form.activeControl()->name();
        user::tab();
    } while (form.activeControl()->name() != names.first() && names.size() < 40);
    return names.join(' ');
}
