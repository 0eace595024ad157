// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/look.h"

#include "platform/forms/controls/behaviours.h"
#include "platform/forms/looks/light_style.h"
#include "platform/forms/screens/form.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWidget>

#include <algorithm>

namespace forms::look {

namespace {

constexpr int labelGap = 8; // pixels between a label and its box

QLayout* acrossWidth(std::initializer_list<CommandButton*> row)
{
    equalWidths(row);
    auto* line = new QHBoxLayout;
    line->setSpacing(grid(1));
    for (CommandButton* button : row)
        line->addWidget(button->widget(), 1);
    return line;
}

} // namespace

Page::Page(Form& form, PageSize size)
    : page_(new QVBoxLayout(form.canvas()))
    , column_(new QVBoxLayout)
{
    if (size == PageSize::Screen)
        form.setLeastSize(leastWindow());
    page_->setContentsMargins(grid(3), grid(2), grid(3), grid(2));
    page_->setSpacing(grid(1));
    column_->setSpacing(grid(1));
    auto* middle = new QHBoxLayout;
    middle->addStretch(1);
    middle->addLayout(column_);
    middle->addStretch(1);
    // The middle of the room is a little above the middle of the page.
    page_->addStretch(2);
    page_->addLayout(middle);
    page_->addStretch(3);
}

void Page::title(Label& label)
{
    label.setRole(TextRole::Title);
    page_->insertWidget(0, label.widget());
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

void Page::wideButtons(std::initializer_list<CommandButton*> row)
{
    column_->addLayout(acrossWidth(row));
}

void Page::foot(Label* helpHint, Label* footer)
{
    auto* line = new QHBoxLayout;
    for (Label* label : {helpHint, footer}) {
        if (label) {
            label->setRole(TextRole::Hint);
            line->addWidget(label->widget());
        }
        if (label == helpHint)
            line->addStretch();
    }
    if (helpHint)
        helpHint->openHelp();
    page_->addLayout(line);
}

// ---- rows

FieldRows::FieldRows()
    : grid_(new QGridLayout)
{
    grid_->setHorizontalSpacing(labelGap);
    grid_->setVerticalSpacing(rowGap());
    grid_->setColumnStretch(1, 1);
}

void FieldRows::row(Label& label, std::initializer_list<Control*> controls)
{
    add(label, controls, sideBySide(controls));
}

void FieldRows::wideRow(Label& label, std::initializer_list<Control*> controls)
{
    auto* line = new QHBoxLayout;
    line->setSpacing(labelGap);
    for (Control* control : controls)
        line->addWidget(control->widget());
    add(label, controls, line);
}

void FieldRows::add(Label& label, std::initializer_list<Control*> controls, QLayout* line)
{
    const int at = grid_->rowCount();
    grid_->addWidget(label.widget(), at, 0, Qt::AlignRight | Qt::AlignVCenter);
    grid_->addLayout(line, at, 1);
    if (controls.size() > 0)
        label.nameFor(**controls.begin());
}

void FieldRows::buttons(std::initializer_list<CommandButton*> row)
{
    grid_->addLayout(acrossWidth(row), grid_->rowCount(), 1);
}

void FieldRows::words(Label& label)
{
    label.setRole(TextRole::Instruction);
    grid_->addWidget(label.widget(), grid_->rowCount(), 0, 1, 2);
}

void FieldRows::heading(Label& label)
{
    label.setRole(TextRole::Heading);
    below(label);
}

void FieldRows::below(Control& control)
{
    grid_->addWidget(control.widget(), grid_->rowCount(), 1);
}

// In the first row of the grid, which holds nothing else.
void FieldRows::setWidthInCharacters(int characters)
{
    grid_->addItem(new QSpacerItem(fieldWidth(characters), 0, QSizePolicy::Preferred, QSizePolicy::Minimum), 0, 1);
}

void FieldRows::gap()
{
    grid_->setRowMinimumHeight(grid_->rowCount(), look::grid(1));
}

Choices::Choices()
    : grid_(new QGridLayout)
{
    grid_->setHorizontalSpacing(grid(3));
    grid_->setVerticalSpacing(grid(3));
}

namespace {

QAbstractButton& enlarged(const Control& control, const QSize& least)
{
    auto& button = *static_cast<QAbstractButton*>(control.widget());
    button.setFont(fontOf(TextRole::Heading));
    button.setIconSize(QSize(grid(1), grid(1)) * 7 / 2);
    button.setMinimumSize(least);
    return button;
}

} // namespace

void Choices::add(CommandButton& button, Label& purpose, const QString& words)
{
    QAbstractButton& push = enlarged(button, {grid(18), grid(7)});
    purpose.setCaption(words);
    purpose.setRole(TextRole::Instruction);
    purpose.wrapAt(36);
    const int row = grid_->rowCount();
    grid_->addWidget(&push, row, 0);
    grid_->addWidget(purpose.widget(), row, 1, Qt::AlignVCenter);
}

void Choices::add(OptionButton& option, const QString& icon)
{
    QAbstractButton& card = enlarged(option, {grid(36), grid(6)});
    card.setProperty(choiceProperty, true);
    giveIcon(card, icon);
    grid_->setVerticalSpacing(grid(3) / 2);
    grid_->addWidget(&card, grid_->rowCount(), 0);
}

QBoxLayout* besideOrBelow(int gap)
{
    auto* pair = new QHBoxLayout;
    pair->setSpacing(gap);
    pair->setProperty(pairProperty, true);
    return pair;
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

void configure(std::initializer_list<ButtonLook> buttons, int helpNumber)
{
    for (const ButtonLook& look : buttons) {
        look.button.setTabIndex(look.tabIndex);
        look.button.setCaption(look.caption);
        look.button.setToolTip(look.toolTip);
        if (look.icon)
            giveIcon(static_cast<QAbstractButton&>(*look.button.widget()), look.icon);
        look.button.setHelpNumber(helpNumber);
        if (look.pressed == PressedLook::Shown)
            behaviours::pressedColour(look.button);
    }
}

void configure(std::initializer_list<FieldLook> fields, int helpNumber)
{
    for (const FieldLook& look : fields) {
        look.control.setTabIndex(look.tabIndex);
        look.control.setToolTip(look.toolTip);
        look.control.setHelpNumber(helpNumber);
        if (look.maxLength > 0)
            dynamic_cast<TextEntry&>(look.control).setMaxLength(look.maxLength);
    }
}

void giveIcon(QAbstractButton& button, const QString& name)
{
    button.setIcon(buttonIcon(name));
    button.setLayoutDirection(name == QLatin1String("next") ? Qt::RightToLeft : Qt::LeftToRight);
}

// A list is known by the label that belongs to it and by nothing else, be it one that nobody sees.
void nameForTools(QWidget& box, const QString& name)
{
    box.setAccessibleName(name);
    if (!qobject_cast<QComboBox*>(&box))
        return;
    auto* label = new QLabel(name, box.parentWidget());
    label->setBuddy(&box);
    label->hide();
}

void keepPlace(const Control& control)
{
    QSizePolicy policy = control.widget()->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    control.widget()->setSizePolicy(policy);
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
