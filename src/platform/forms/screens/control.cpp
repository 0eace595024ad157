// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/screens/control.h"

#include "platform/forms/runtime/boundary.h"
#include "platform/forms/screens/form.h"
#include "platform/forms/screens/stage.h"

#include <QGuiApplication>
#include <QPalette>
#include <QWidget>

namespace forms {

bool key::isWithControl()
{
    const Qt::KeyboardModifiers others = Qt::ShiftModifier | Qt::AltModifier | Qt::MetaModifier;
    return (QGuiApplication::keyboardModifiers() & (Qt::ControlModifier | others)) == Qt::ControlModifier;
}

Control::Control(Form& form, const QString& name)
    : form_(form)
    , name_(name)
    , path_(form.name() + QLatin1Char('.') + name)
{
    form.enroll(*this);
}

Control::~Control()
{
    Stage::instance().dismiss(widget_);
    form_.dismiss(*this);
}

void Control::adopt(QWidget* widget)
{
    widget_ = widget;
    widget_->setObjectName(name_);
    Stage::instance().enroll(widget_, *this);
}

void Control::setEnabled(bool enabled)
{
    {
        const ToolkitCall call;
        widget_->setEnabled(enabled);
    }
    if (!enabled)
        moveFocusOn();
}

bool Control::isEnabled() const
{
    return widget_->isEnabledTo(form_.canvas());
}

void Control::setVisible(bool visible)
{
    {
        const ToolkitCall call;
        widget_->setVisible(visible);
    }
    if (!visible)
        moveFocusOn();
}

bool Control::isVisible() const
{
    return widget_->isVisibleTo(form_.canvas());
}

void Control::moveFocusOn()
{
    if (form_.activeControl() != this)
        return;
    if (Control* next = form_.nextInTabOrder(true); next && next != this)
        next->setFocus();
}

bool Control::canTakeFocus() const
{
    return widget_->focusPolicy() != Qt::NoFocus && isEnabled() && isVisible();
}

void Control::setFocus()
{
    if (!canTakeFocus())
        return;
    {
        const ToolkitCall call;
        // Not the reason of the user's key, by which the toolkit would select the whole text.
        widget_->setFocus(Qt::OtherFocusReason);
    }
    if (form_.isVisible() && Stage::instance().active() == &form_)
        form_.moveFocus(this);
    else
        form_.wanted_ = this;
}

bool Control::hasFocus() const
{
    return Stage::instance().active() == &form_ && form_.isVisible() && form_.focused_ == this;
}

void Control::setToolTip(const QString& text)
{
    widget_->setToolTip(text);
}

QString Control::toolTip() const
{
    return widget_->toolTip();
}

void Control::setSpokenName(const QString& name)
{
    widget_->setAccessibleName(name);
}

void Control::setBackColour(const QColor& colour)
{
    backColour_ = colour;
    paintAnew();
}

void Control::setTextColour(const QColor& colour)
{
    textColour_ = colour;
    paintAnew();
}

// What is not set here is inherited.
void Control::paintAnew()
{
    QPalette palette;
    if (backColour_.isValid()) {
        palette.setColor(QPalette::Base, backColour_);
        palette.setColor(QPalette::Button, backColour_);
    }
    if (textColour_.isValid())
        palette.setColor(QPalette::Text, textColour_);
    const ToolkitCall call;
    widget_->setPalette(palette);
}

} // namespace forms
