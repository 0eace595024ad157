// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/controls/buttons.h"

#include "platform/forms/controls/button_widget.h"
#include "platform/forms/looks/light_style.h"
#include "platform/forms/looks/theme.h"
#include "platform/forms/runtime/boundary.h"
#include "platform/forms/screens/form.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>

namespace forms {

QAbstractButton* Button::button() const
{
    return static_cast<QAbstractButton*>(widget());
}

QString Button::caption() const
{
    return button()->text();
}

void Button::setCaption(const QString& caption)
{
    button()->setText(caption);
}

// ---- command buttons

CommandButton::CommandButton(Form& form, const QString& name)
    : Button(form, name)
{
    auto* push = new ButtonWidget<QPushButton>(form.canvas(), *this);
    adopt(push);
    QObject::connect(push, &QAbstractButton::clicked, push, [this] { clicked(); });
}

void CommandButton::clicked()
{
    if (!insideToolkitCall())
        fromToolkit([this] { press(); });
}

void CommandButton::press()
{
    if (isEnabled() && isVisible() && form().isVisible()) // a press that waited finds the screen gone
        Click.fire();
}

void CommandButton::setIcon(const QString& resource)
{
    setIcon(look::icon(resource));
}

void CommandButton::setIcon(const QIcon& icon)
{
    button()->setIcon(icon);
}

void CommandButton::setDefault(bool isDefault)
{
    if (isDefault == this->isDefault())
        return;
    const ToolkitCall call;
    if (Control* other = form().defaultButton())
        static_cast<QPushButton*>(other->widget())->setDefault(false);
    form().setDefaultButton(isDefault ? this : nullptr);
    static_cast<QPushButton*>(widget())->setDefault(isDefault);
}

bool CommandButton::isDefault() const
{
    return form().defaultButton() == this;
}

void CommandButton::setDestructive(bool destructive)
{
    button()->setProperty(look::destructiveProperty, destructive);
    button()->update();
}

bool CommandButton::isDestructive() const
{
    return button()->property(look::destructiveProperty).toBool();
}

// ---- option buttons

namespace {

std::vector<OptionButton*> groupOf(const OptionButton& option)
{
    std::vector<OptionButton*> group;
    for (Control* control : option.form().controls())
        if (auto* other = dynamic_cast<OptionButton*>(control))
            if (other->widget()->parentWidget() == option.widget()->parentWidget())
                group.push_back(other);
    return group;
}

} // namespace

OptionButton::OptionButton(Form& form, const QString& name)
    : Button(form, name)
{
    auto* radio = new ButtonWidget<QRadioButton>(form.canvas(), *this);
    adopt(radio);
    // A click that turns it on comes behind that.
    QObject::connect(radio, &QAbstractButton::toggled, radio, [this] { chosen_ = false; });
    QObject::connect(radio, &QAbstractButton::clicked, radio, [this] {
        if (insideToolkitCall() || std::exchange(chosen_, true))
            return;
        fromToolkit([this] { Click.fire(); });
    });
}

bool OptionButton::value() const
{
    return button()->isChecked();
}

void OptionButton::setValue(bool chosen)
{
    if (chosen == value())
        return;
    {
        const ToolkitCall call;
        // An exclusive group keeps its chosen button chosen.
        button()->setAutoExclusive(chosen);
        button()->setChecked(chosen);
        button()->setAutoExclusive(true);
    }
    chosen_ = chosen;
    if (chosen)
        Click.fire();
}

bool OptionButton::isTabStop() const
{
    auto group = groupOf(*this);
    std::erase_if(group, [](const OptionButton* option) { return !option->canTakeFocus(); });
    if (group.empty())
        return false;
    const auto chosen =
        std::find_if(group.begin(), group.end(), [](const OptionButton* option) { return option->value(); });
    if (chosen != group.end())
        return *chosen == this;
    const auto first = std::min_element(group.begin(), group.end(),
        [](const OptionButton* one, const OptionButton* other) { return one->tabIndex() < other->tabIndex(); });
    return *first == this;
}

bool OptionButton::moveByArrow(int direction)
{
    auto group = groupOf(*this);
    std::erase_if(group, [this](const OptionButton* option) { return option != this && !option->canTakeFocus(); });
    std::stable_sort(group.begin(), group.end(),
        [](const OptionButton* one, const OptionButton* other) { return one->tabIndex() < other->tabIndex(); });
    const auto count = static_cast<int>(group.size());
    const auto here = static_cast<int>(std::find(group.begin(), group.end(), this) - group.begin());
    OptionButton* next = group[static_cast<std::size_t>((here + direction + count) % count)];
    next->setFocus();
    next->setValue(true);
    return true;
}

// ---- check boxes

CheckBox::CheckBox(Form& form, const QString& name)
    : Button(form, name)
{
    auto* check = new ButtonWidget<QCheckBox>(form.canvas(), *this);
    adopt(check);
    QObject::connect(check, &QAbstractButton::clicked, check, [this] {
        if (!insideToolkitCall())
            fromToolkit([this] { Click.fire(); });
    });
}

int CheckBox::value() const
{
    return button()->isChecked() ? 1 : 0;
}

void CheckBox::setValue(int value)
{
    if (value == this->value())
        return;
    {
        const ToolkitCall call;
        button()->setChecked(value != 0);
    }
    Click.fire();
}

} // namespace forms
