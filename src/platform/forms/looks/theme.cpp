// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/looks/theme.h"

#include "platform/forms/looks/picture_engine.h"

#include <QApplication>
#include <QFontMetrics>
#include <QGridLayout>
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

Theme& theme()
{
    static Theme theme;
    return theme;
}

} // namespace

void setTheme(const Theme& given)
{
    theme() = given;
}

const Colours& colours()
{
    return theme().colours;
}

QIcon buttonIcon(const QString& name)
{
    return icon(QStringLiteral("%1/%2.png").arg(theme().icons, name));
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
    return QIcon(new PictureEngine(resource));
}

double pictureScale()
{
    return QApplication::font().pointSizeF() / LeastPoints;
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

int rowGap()
{
    return grid(1) * 3 / 4;
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

bool stackLastPair(QLayout& layout)
{
    QBoxLayout* last = nullptr;
    for (QBoxLayout* pair : layout.findChildren<QBoxLayout*>())
        if (pair->property(pairProperty).toBool() && pair->direction() == QBoxLayout::LeftToRight)
            last = pair;
    if (!last)
        return false;
    last->setDirection(QBoxLayout::TopToBottom);
    last->setSpacing(rowGap());
    return true;
}

} // namespace forms::look
