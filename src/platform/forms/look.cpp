// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/look.h"

#include "platform/forms/behaviours.h"
#include "platform/forms/form.h"
#include "platform/forms/light_style.h"

#include <QApplication>
#include <QFontMetrics>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPalette>
#include <QVBoxLayout>
#include <QWidget>

#include <algorithm>

namespace forms::look {

namespace {

struct TypeStep {
    TextRole role;
    double scale; // of the body size
    QFont::Weight weight;
};

constexpr TypeStep typeScale[] = {
    {TextRole::Title, 1.8, QFont::DemiBold},
    {TextRole::Heading, 1.3, QFont::DemiBold},
    {TextRole::Instruction, 1.1, QFont::Medium},
    {TextRole::Body, 1.0, QFont::Normal},
    {TextRole::Hint, 0.9, QFont::Normal},
};

QPalette palette()
{
    const Colours& the = colours();
    QPalette palette(the.buttonFace, the.ground);
    palette.setColor(QPalette::Window, the.ground);
    palette.setColor(QPalette::Base, the.field);
    palette.setColor(QPalette::AlternateBase, the.buttonFace);
    palette.setColor(QPalette::ToolTipBase, the.buttonFace);
    palette.setColor(QPalette::Highlight, the.accent);
    palette.setColor(QPalette::HighlightedText, the.field);
    palette.setColor(QPalette::Mid, the.line);
    palette.setColor(QPalette::PlaceholderText, the.quiet);
    for (const auto role :
        {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText, QPalette::BrightText})
        palette.setColor(role, the.text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, the.line.darker(150));
    palette.setColor(QPalette::Disabled, QPalette::Base, the.ground.lighter(106));
    return palette;
}

} // namespace

const Colours& colours()
{
    static const Colours the;
    return the;
}

QFont fontOf(TextRole role)
{
    const auto& step = *std::find_if(
        std::begin(typeScale), std::end(typeScale), [role](const TypeStep& each) { return each.role == role; });
    QFont font = QApplication::font();
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * step.scale);
    else
        font.setPixelSize(static_cast<int>(font.pixelSize() * step.scale));
    font.setWeight(step.weight);
    return font;
}

int grid(int steps)
{
    return QFontMetrics(QApplication::font()).height() * steps / 2;
}

int fieldWidth(int characters)
{
    const QFontMetrics metrics(QApplication::font());
    // Capitals and digits are wider than the average character; the rest is frame and padding.
    return std::max(metrics.averageCharWidth(), metrics.horizontalAdvance(u'0')) * characters + metrics.height();
}

void apply(QApplication& application)
{
    QApplication::setStyle(new LightStyle);
    QApplication::setPalette(palette());
    application.setStyleSheet({});
}

// ---- pages

Page::Page(Form& form)
    : column_(new QVBoxLayout(form.canvas()))
{
    column_->setContentsMargins(grid(3), grid(2), grid(3), grid(2));
    column_->setSpacing(grid(1));
}

void Page::title(Label& label)
{
    label.setRole(TextRole::Title);
    column_->addWidget(label.widget());
}

void Page::instruction(Label& label)
{
    label.setRole(TextRole::Instruction);
    column_->addWidget(label.widget());
}

void Page::add(QLayout* layout, int stretch)
{
    column_->addLayout(layout, stretch);
}

void Page::add(Control& control)
{
    column_->addWidget(control.widget(), 0, Qt::AlignHCenter);
}

void Page::space(int steps)
{
    column_->addSpacing(grid(steps));
}

void Page::buttons(std::initializer_list<CommandButton*> row)
{
    equalWidths(row);
    auto* line = new QHBoxLayout;
    line->setSpacing(grid(1));
    line->addStretch();
    for (CommandButton* button : row)
        line->addWidget(button->widget());
    line->addStretch();
    column_->addLayout(line);
}

void Page::foot(Label* helpHint, Label* footer)
{
    column_->addStretch();
    auto* line = new QHBoxLayout;
    for (Label* label : {helpHint, footer}) {
        if (label) {
            label->setRole(TextRole::Hint);
            line->addWidget(label->widget());
        }
        if (label == helpHint)
            line->addStretch();
    }
    column_->addLayout(line);
}

// ---- rows

FieldRows::FieldRows()
    : grid_(new QGridLayout)
{
    grid_->setHorizontalSpacing(look::grid(1));
    grid_->setVerticalSpacing(look::grid(1) * 3 / 4);
    grid_->setColumnStretch(1, 1);
}

void FieldRows::row(Label& label, std::initializer_list<Control*> controls)
{
    const int at = grid_->rowCount();
    grid_->addWidget(label.widget(), at, 0, Qt::AlignRight | Qt::AlignVCenter);
    grid_->addLayout(static_cast<QHBoxLayout*>(sideBySide(controls)), at, 1);
    if (controls.size() > 0)
        label.nameFor(**controls.begin());
}

QLayout* sideBySide(std::initializer_list<Control*> controls)
{
    auto* line = new QHBoxLayout;
    line->setSpacing(grid(1) / 2);
    for (Control* control : controls)
        line->addWidget(control->widget());
    line->addStretch();
    return line;
}

void dress(std::initializer_list<ButtonLook> buttons, int helpNumber)
{
    for (const ButtonLook& look : buttons) {
        look.button.setTabIndex(look.tabIndex);
        look.button.setCaption(look.caption);
        look.button.setToolTip(look.toolTip);
        look.button.setIcon(QStringLiteral(":/pictures/icons/%1.png").arg(look.icon));
        look.button.setHelpNumber(helpNumber);
        if (look.pressed == PressedLook::Shown)
            behaviours::pressedColour(look.button);
    }
}

void dress(std::initializer_list<FieldLook> fields, int helpNumber)
{
    for (const FieldLook& look : fields) {
        look.control.setTabIndex(look.tabIndex);
        look.control.setToolTip(look.toolTip);
        look.control.setHelpNumber(helpNumber);
        if (look.maxLength > 0)
            dynamic_cast<TextEntry&>(look.control).setMaxLength(look.maxLength);
    }
}

void equalWidths(std::initializer_list<CommandButton*> buttons)
{
    int widest = 0;
    for (const CommandButton* button : buttons)
        widest = std::max(widest, button->widget()->sizeHint().width());
    for (CommandButton* button : buttons)
        button->widget()->setMinimumWidth(widest);
}

} // namespace forms::look
