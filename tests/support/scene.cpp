// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/scene.h"

#include "frame/frmStartup.h"
#include "platform/forms/look.h"
#include "support/user.h"

#include <QtWidgets>

namespace {

QString valueOf(const forms::Control& control)
{
    if (const auto* entry = dynamic_cast<const forms::TextEntry*>(&control))
        return '=' + entry->text();
    if (const auto* label = dynamic_cast<const forms::Label*>(&control))
        return ": " + label->caption();
    if (const auto* group = dynamic_cast<const forms::GroupBox*>(&control))
        return ": " + group->caption();
    if (const auto* bar = dynamic_cast<const forms::ProgressBar*>(&control))
        return QString(" at %1 of %2").arg(bar->value()).arg(bar->max());
    const auto* button = dynamic_cast<const forms::Button*>(&control);
    return button ? ": " + button->caption() : QString();
}

bool isOn(const forms::Control& control)
{
    const auto* option = dynamic_cast<const forms::OptionButton*>(&control);
    const auto* check = dynamic_cast<const forms::CheckBox*>(&control);
    return (option && option->value()) || (check && check->value() == 1);
}

} // namespace

QString focus()
{
    const forms::Form* front = forms::activeForm();
    const forms::Control* control = front ? front->activeControl() : nullptr;
    if (!control)
        return {};
    const auto* entry = dynamic_cast<const forms::TextEntry*>(control);
    const QString selected = entry ? entry->text().mid(entry->selectionStart(), entry->selectionLength()) : QString();
    return control->name() + (selected.isEmpty() ? QString() : " [" + selected + ']');
}

QString scene()
{
    const forms::Form* front = forms::activeForm();
    QStringList others;
    for (const QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && !window->windowRole().isEmpty() && (!front || window != front->window()))
            others += window->windowRole();
    others.sort();
    const QString where = focus();
    others.prepend(front ? front->name() + (front->isEnabled() ? "" : " off") + (where.isEmpty() ? where : ": " + where)
                         : "nothing");
    return QString::number(frmStartup::CurrentScreen) + ' ' + others.join("; ");
}

QStringList partsOf(const forms::Control& control)
{
    const auto* entry = dynamic_cast<const forms::TextEntry*>(&control);
    const auto* button = dynamic_cast<const forms::CommandButton*>(&control);
    const bool mayGiveWay = control.name() == "imgHome"; // where the desktop is small
    const std::pair<const char*, bool> marks[] = {{"on", isOn(control)}, {"locked", entry && entry->isLocked()},
        {"grey", !control.isEnabled()}, {"hidden", !control.isVisible() && !mayGiveWay},
        {"red", control.backColour() == forms::look::colours().error}, {"default", button && button->isDefault()},
        {"destructive", button && button->isDestructive()}};
    QStringList parts(valueOf(control));
    for (const auto& [mark, hasMark] : marks)
        if (hasMark)
            parts += mark;
    if (const QString tip = control.toolTip(); !tip.isEmpty())
        parts += "tip \"" + tip + '"';
    return parts.replaceInStrings("\n", "\\n");
}

QStringList gathered(const QStringList& told)
{
    static const QRegularExpression member("^(\\w+\\()(\\d+)(\\).*)$");
    QStringList all;
    QMap<QString, qsizetype> places;
    for (const QString& each : told) {
        const auto parts = member.match(each);
        const QString alike = parts.captured(1) + parts.captured(3);
        if (parts.hasMatch() && places.contains(alike)) {
            QString& first = all[places[alike]];
            first.insert(first.indexOf(')'), ' ' + parts.captured(2));
        } else {
            places[alike] = all.size();
            all += each;
        }
    }
    return all;
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
