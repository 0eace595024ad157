// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/look.h"

#include "platform/forms/behaviours.h"
#include "platform/forms/form.h"
#include "platform/forms/light_style.h"

#include <QApplication>
#include <QComboBox>
#include <QFontInfo>
#include <QFontMetrics>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPalette>
#include <QProcess>
#include <QPushButton>
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
    {TextRole::Hint, 10.0 / 11, QFont::Normal},
};

constexpr double leastPoints = 11; // of the body: hints have 10 then
constexpr int labelGap = 8; // pixels between a label and its box

int rowGap()
{
    return grid(1) * 3 / 4;
}

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
        palette.setColor(QPalette::Disabled, role, the.quiet);
    palette.setColor(QPalette::Disabled, QPalette::Base, the.ground.lighter(106));
    palette.setColor(QPalette::Inactive, QPalette::Highlight, the.pressed);
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText, the.text);
    return palette;
}

// A box of several lines keeps its selection and doesn't show it while the focus is elsewhere.
QPalette memoPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Inactive, QPalette::Highlight, Qt::transparent);
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText, colours().text);
    return palette;
}

// How much larger than its font a desktop wants texts. By X11 it tells so in dots an inch, which the toolkit heeds; by
// Wayland it doesn't tell, and its settings have to be read.
double largeText()
{
    if (!QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
        return 1;
    constexpr int patience = 500; // milliseconds
    constexpr double most = 3;
    QProcess settings;
    settings.start(QStringLiteral("gsettings"),
        {QStringLiteral("get"), QStringLiteral("org.gnome.desktop.interface"), QStringLiteral("text-scaling-factor")});
    if (!settings.waitForFinished(patience))
        return 1; // nor does such a desktop have any
    return std::clamp(settings.readAllStandardOutput().trimmed().toDouble(), 1.0, most);
}

QFont bodyFont()
{
    QFont font = QApplication::font();
    const double points = font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
    font.setPointSizeF(std::max(points * largeText(), leastPoints));
    return font;
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
    font.setPointSizeF(font.pointSizeF() * step.scale);
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

QIcon icon(const QString& resource)
{
    QIcon icon;
    for (const char* size : {".png", "@2x.png", "@3x.png", "@4x.png"}) {
        QString file = resource;
        QPixmap picture(file.replace(QLatin1String(".png"), QLatin1String(size)));
        if (picture.isNull())
            continue;
        picture.setDevicePixelRatio(1); // sizes are told apart by their pixels
        icon.addPixmap(picture);
    }
    return icon;
}

double pictureScale()
{
    return QApplication::font().pointSizeF() / leastPoints;
}

int entryInset()
{
    return grid(1) / 2;
}

int textInset()
{
    constexpr int toolkitMargin = 2; // what the toolkit's entry keeps free on its own
    return entryInset() + entryTextMargin + toolkitMargin;
}

int rowsHeight(int rows)
{
    return grid(3) * rows + rowGap() * (rows - 1);
}

QSize leastWindow()
{
    return {grid(96), grid(62)};
}

void tighten(QLayout& layout)
{
    const QMargins margins = layout.contentsMargins();
    layout.setContentsMargins(margins / 2);
    if (auto* grid = qobject_cast<QGridLayout*>(&layout)) {
        grid->setHorizontalSpacing(grid->horizontalSpacing() / 2);
        grid->setVerticalSpacing(grid->verticalSpacing() / 2);
    } else {
        layout.setSpacing(layout.spacing() / 2);
    }
    for (int index = 0; index < layout.count(); ++index) {
        QLayoutItem& item = *layout.itemAt(index);
        if (QSpacerItem* space = item.spacerItem())
            space->changeSize(space->sizeHint().width() / 2, space->sizeHint().height() / 2,
                space->sizePolicy().horizontalPolicy(), space->sizePolicy().verticalPolicy());
        else if (QLayout* inner = item.layout() ? item.layout() : item.widget()->layout())
            tighten(*inner);
    }
    layout.invalidate();
}

void apply(QApplication& application)
{
    QApplication::setLayoutDirection(Qt::LeftToRight); // the texts are English, whatever the desktop's language
    QApplication::setFont(bodyFont());
    QApplication::setStyle(new LightStyle);
    QApplication::setPalette(palette());
    QApplication::setPalette(memoPalette(), "QPlainTextEdit");
    application.setStyleSheet({});
}

// ---- pages

namespace {

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

void Choices::add(CommandButton& button, Label& purpose, const QString& words)
{
    auto& push = *static_cast<QPushButton*>(button.widget());
    push.setFont(fontOf(TextRole::Heading));
    push.setIconSize(QSize(grid(1), grid(1)) * 7 / 2);
    push.setMinimumSize(grid(18), grid(7));
    purpose.setCaption(words);
    purpose.setRole(TextRole::Instruction);
    purpose.wrapAt(36);
    const int row = grid_->rowCount();
    grid_->addWidget(&push, row, 0);
    grid_->addWidget(purpose.widget(), row, 1, Qt::AlignVCenter);
}

void mainAction(CommandButton& button)
{
    button.widget()->setProperty(mainActionProperty, true);
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
