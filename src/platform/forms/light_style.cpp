// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/light_style.h"

#include "platform/forms/look.h"

#include <QApplication>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

#include <algorithm>
#include <iterator>

namespace forms::look {

namespace {

constexpr qreal cornerRadius = 4;

void drawPanel(QPainter* painter, const QRect& rect, const QColor& face, const QColor& line, qreal width)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(line, width));
    painter->setBrush(face);
    const qreal inset = width / 2;
    painter->drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), cornerRadius, cornerRadius);
    painter->restore();
}

void drawButton(QPainter* painter, const QStyleOption& option)
{
    const Colours& the = colours();
    QColor face = option.palette.color(QPalette::Button);
    const bool enabled = option.state & QStyle::State_Enabled;
    if (!enabled)
        face = the.ground.lighter(103);
    else if (option.state & QStyle::State_Sunken)
        face = the.pressed;
    else if (option.state & QStyle::State_MouseOver)
        face = face.lighter(103);
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    const bool isDefault = button && (button->features & QStyleOptionButton::DefaultButton);
    const bool focused = option.state & QStyle::State_HasFocus;
    const bool marked = enabled && (focused || isDefault);
    drawPanel(painter, option.rect, face, marked ? the.accent : the.line, focused ? 2 : 1);
}

void drawBox(QPainter* painter, const QStyleOption& option)
{
    const bool focused = (option.state & QStyle::State_HasFocus) && (option.state & QStyle::State_Enabled);
    drawPanel(painter, option.rect, option.palette.color(QPalette::Base), focused ? colours().accent : colours().line,
        focused ? 2 : 1);
}

struct Sign {
    QStyle::StandardPixmap pixmap;
    QChar mark;
    QColor colour;
};

const Sign* signOf(QStyle::StandardPixmap pixmap)
{
    static const Sign signs[] = {
        {QStyle::SP_MessageBoxQuestion, u'?', colours().accent},
        {QStyle::SP_MessageBoxInformation, u'i', colours().accent},
        {QStyle::SP_MessageBoxWarning, u'!', QColor(196, 120, 20)},
        {QStyle::SP_MessageBoxCritical, u'\u00D7', QColor(178, 48, 40)},
    };
    const auto* found =
        std::find_if(std::begin(signs), std::end(signs), [pixmap](const Sign& sign) { return sign.pixmap == pixmap; });
    return found == std::end(signs) ? nullptr : found;
}

// The sign of a message box: a mark on a disc.
QPixmap draw(const Sign& sign, int size, qreal ratio)
{
    QPixmap pixmap(QSize(size, size) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(sign.colour);
    const QRectF disc(1, 1, size - 2, size - 2);
    painter.drawEllipse(disc);
    QFont font = QApplication::font();
    font.setPixelSize(size * 5 / 8);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(colours().field);
    painter.drawText(disc, Qt::AlignCenter, sign.mark);
    return pixmap;
}

} // namespace

LightStyle::LightStyle()
    : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
{
}

void LightStyle::drawPrimitive(
    PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    switch (element) {
    case PE_PanelButtonCommand:
        drawButton(painter, *option);
        return;
    case PE_PanelLineEdit:
        if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option); frame && frame->lineWidth > 0) {
            drawBox(painter, *option);
            return;
        }
        break;
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

int LightStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    if (metric == PM_ButtonShiftHorizontal || metric == PM_ButtonShiftVertical)
        return 0;
    if (metric == PM_ButtonIconSize)
        return grid(2);
    return QProxyStyle::pixelMetric(metric, option, widget);
}

QSize LightStyle::sizeFromContents(
    ContentsType type, const QStyleOption* option, const QSize& contents, const QWidget* widget) const
{
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    if (type == CT_PushButton)
        size += QSize(grid(1), grid(1) / 2);
    if (type == CT_LineEdit || type == CT_ComboBox)
        size.setHeight(grid(3)); // boxes of both kinds stand in rows of one height
    return size;
}

QPixmap LightStyle::standardPixmap(StandardPixmap pixmap, const QStyleOption* option, const QWidget* widget) const
{
    const qreal ratio = widget ? widget->devicePixelRatioF() : 1;
    if (const Sign* sign = signOf(pixmap))
        return draw(*sign, proxy()->pixelMetric(PM_MessageBoxIconSize, option, widget), ratio);
    return QProxyStyle::standardPixmap(pixmap, option, widget);
}

QIcon LightStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const
{
    if (signOf(icon))
        return QIcon(standardPixmap(icon, option, widget));
    return QProxyStyle::standardIcon(icon, option, widget);
}

int LightStyle::styleHint(
    StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* returned) const
{
    // Access keys are always underlined: nobody has to know that Alt shows them.
    if (hint == SH_UnderlineShortcut)
        return 1;
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons)
        return 0;
    // Lists open below their box, as lists do, and not over it.
    if (hint == SH_ComboBox_Popup)
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

} // namespace forms::look
