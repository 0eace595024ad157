// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/looks/light_style.h"

#include "platform/forms/looks/style_painting.h"
#include "platform/forms/looks/theme.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QListView>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTreeWidget>

#include <algorithm>

namespace forms::look {

namespace {

using paint::captionGap;

// Marks grow with the font; an even number keeps them in the middle of their row.
int markSize()
{
    return grid(2) * 9 / 20 * 2;
}

int arrowWidth()
{
    return grid(2) + grid(1) / 2;
}

bool has(const QWidget* widget, const char* property)
{
    return widget && widget->property(property).toBool();
}

// A default button is filled unless it is pressed.
paint::Ink inkOf(const QStyleOption& option, const QWidget* widget)
{
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    const bool isDefault = button && (button->features & QStyleOptionButton::DefaultButton);
    const bool isAtRest = (option.state & QStyle::State_Enabled) && !(option.state & QStyle::State_Sunken)
        && option.palette.color(QPalette::Button) == colours().buttonFace;
    return {isDefault && isAtRest, has(widget, destructiveProperty)};
}

// How far an option's mark and words stand inside the face of a choice.
int choiceMargin()
{
    return grid(1) * 3 / 2;
}

// The caption of a group box has a row of its own above the frame.
QRect groupBoxPart(const QStyleOptionGroupBox& option, QStyle::SubControl part)
{
    const int captionRow = rowsHeight(1);
    if (part == QStyle::SC_GroupBoxLabel) {
        const QSize words = option.fontMetrics.size(Qt::TextShowMnemonic, option.text);
        return {QPoint(option.rect.left(), option.rect.top() + (captionRow - words.height()) / 2), words};
    }
    return option.rect.adjusted(0, rowsHeight(2) - captionRow, 0, 0);
}

bool isRecordList(const QWidget* widget)
{
    return qobject_cast<const QTreeWidget*>(widget)
        || (widget && qobject_cast<const QTreeWidget*>(widget->parentWidget()));
}

} // namespace

LightStyle::LightStyle()
    : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
{
}

// ---- painting

void LightStyle::drawPrimitive(
    PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    switch (element) {
    case PE_PanelButtonCommand:
        paint::button(*painter, *option, inkOf(*option, widget));
        return;
    case PE_IndicatorCheckBox:
        paint::square(*painter, *option);
        return;
    case PE_IndicatorRadioButton:
        paint::ring(*painter, *option);
        return;
    case PE_PanelLineEdit:
    case PE_Frame:
    case PE_FrameFocusRect:
    case PE_FrameGroupBox:
        if (drawFrame(element, *option, *painter, widget))
            return;
        break;
    case PE_IndicatorArrowUp:
    case PE_IndicatorArrowDown:
        paint::arrow(*painter, option->rect, element == PE_IndicatorArrowUp ? paint::Heading::Up : paint::Heading::Down,
            colours().line);
        return;
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

// False where the frame is left to the toolkit.
bool LightStyle::drawFrame(
    PrimitiveElement element, const QStyleOption& option, QPainter& painter, const QWidget* widget)
{
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(&option);
    const bool isBox = element == PE_PanelLineEdit
        ? frame && frame->lineWidth > 0
        : element == PE_Frame && qobject_cast<const QAbstractScrollArea*>(widget);
    // The row on which the keys stand, also before one is chosen.
    const bool isRow = element == PE_FrameFocusRect && qobject_cast<const QAbstractItemView*>(widget);
    if (isBox)
        paint::box(painter, option);
    else if (isRow)
        paint::focusFrame(painter, option.rect);
    else if (element == PE_Frame || element == PE_FrameGroupBox)
        paint::panel(painter, option.rect, Qt::transparent, colours().line, 1);
    else
        return false;
    return true;
}

void LightStyle::drawControl(
    ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    switch (element) {
    case CE_PushButtonLabel:
        paint::buttonLabel(*painter, *qstyleoption_cast<const QStyleOptionButton*>(option), inkOf(*option, widget));
        return;
    case CE_ComboBoxLabel:
        drawComboLabel(*qstyleoption_cast<const QStyleOptionComboBox*>(option), *painter, widget);
        return;
    case CE_CheckBox:
    case CE_RadioButton: {
        if (has(widget, choiceProperty))
            drawChoice(*qstyleoption_cast<const QStyleOptionButton*>(option), *painter, widget);
        else
            QProxyStyle::drawControl(element, option, painter, widget);
        // The toolkit shows the focus only to those who have pressed Tab.
        const auto focusRect = element == CE_CheckBox ? SE_CheckBoxFocusRect : SE_RadioButtonFocusRect;
        if (option->state & State_HasFocus)
            paint::focusFrame(*painter, proxy()->subElementRect(focusRect, option, widget));
        return;
    }
    case CE_ProgressBarGroove:
        paint::panel(*painter, option->rect, colours().field, colours().line, 1);
        return;
    default:
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

// The toolkit paints mark and words from the left edge on, wherever the option's place begins.
void LightStyle::drawChoice(const QStyleOptionButton& option, QPainter& painter, const QWidget* widget) const
{
    paint::choice(painter, option);
    QStyleOptionButton inside(option);
    inside.rect.setWidth(option.rect.width() - 2 * choiceMargin());
    painter.translate(choiceMargin(), 0);
    QProxyStyle::drawControl(CE_RadioButton, &inside, &painter, widget);
    painter.translate(-choiceMargin(), 0);
}

void LightStyle::drawComplexControl(
    ComplexControl control, const QStyleOptionComplex* option, QPainter* painter, const QWidget* widget) const
{
    const auto place = [&](SubControl part) { return proxy()->subControlRect(control, option, part, widget); };
    if (control == CC_ComboBox) {
        drawComboBox(*qstyleoption_cast<const QStyleOptionComboBox*>(option), *painter, widget);
    } else if (control == CC_ScrollBar) {
        paint::scrollBar(*painter, *qstyleoption_cast<const QStyleOptionSlider*>(option), place(SC_ScrollBarSubLine),
            place(SC_ScrollBarAddLine), place(SC_ScrollBarGroove), place(SC_ScrollBarSlider));
    } else {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

void LightStyle::drawComboBox(const QStyleOptionComboBox& option, QPainter& painter, const QWidget* widget) const
{
    paint::box(painter, option);
    const bool enabled = option.state & State_Enabled;
    paint::arrow(painter, proxy()->subControlRect(CC_ComboBox, &option, SC_ComboBoxArrow, widget), paint::Heading::Down,
        enabled ? colours().accent : colours().faded);
}

void LightStyle::drawComboLabel(const QStyleOptionComboBox& option, QPainter& painter, const QWidget* widget) const
{
    const QRect entry = proxy()->subControlRect(CC_ComboBox, &option, SC_ComboBoxEditField, widget);
    const QRect place = entry.adjusted(textInset() - entryInset(), 0, 0, 0);
    drawItemText(&painter, place, Qt::AlignLeft | Qt::AlignVCenter, option.palette, option.state & State_Enabled,
        option.fontMetrics.elidedText(option.currentText, Qt::ElideRight, place.width()), QPalette::Text);
}

// ---- measures

int LightStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    case PM_ButtonIconSize:
    case PM_ScrollBarExtent:
        return grid(2);
    case PM_MessageBoxIconSize:
    case PM_ScrollBarSliderMin:
        return grid(4);
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return markSize();
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        return captionGap;
    case PM_DefaultFrameWidth:
        // A box of several lines keeps its rounded corners free of the text's ground.
        if (qobject_cast<const QAbstractScrollArea*>(widget))
            return 3;
        break;
    case PM_FocusFrameHMargin:
    case PM_HeaderMargin:
        // The columns of a list of records keep their texts apart, those on the right too.
        if (isRecordList(widget))
            return grid(1) / 2;
        // The texts of a list begin below that of its box: frame and toolkit add a pixel each.
        if (qobject_cast<const QListView*>(widget))
            return textInset() - 2;
        break;
    default:
        break;
    }
    return QProxyStyle::pixelMetric(metric, option, widget);
}

QRect LightStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const
{
    if (element == SE_LineEditContents) {
        const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
        if (frame && frame->lineWidth > 0)
            return option->rect.adjusted(entryInset(), 2, -entryInset(), -2);
    }
    if (element == SE_RadioButtonFocusRect && has(widget, choiceProperty))
        return option->rect;
    return QProxyStyle::subElementRect(element, option, widget);
}

QRect LightStyle::subControlRect(
    ComplexControl control, const QStyleOptionComplex* option, SubControl part, const QWidget* widget) const
{
    if (control == CC_ComboBox && part == SC_ComboBoxArrow)
        return {option->rect.right() + 1 - arrowWidth(), option->rect.top(), arrowWidth(), option->rect.height()};
    if (control == CC_ComboBox && part == SC_ComboBoxEditField)
        return option->rect.adjusted(entryInset(), 2, -arrowWidth(), -2);
    if (control == CC_GroupBox)
        return groupBoxPart(*qstyleoption_cast<const QStyleOptionGroupBox*>(option), part);
    return QProxyStyle::subControlRect(control, option, part, widget);
}

QSize LightStyle::sizeFromContents(
    ContentsType type, const QStyleOption* option, const QSize& contents, const QWidget* widget) const
{
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    switch (type) {
    case CT_PushButton:
        return size + QSize(grid(1) + captionGap / 2, grid(1) / 2);
    case CT_CheckBox:
    case CT_RadioButton:
        if (has(widget, choiceProperty))
            return size + QSize(2 * choiceMargin(), 0);
        return size + QSize(captionGap, captionGap / 2); // room for the frame of the focus
    case CT_LineEdit:
    case CT_ComboBox:
        size.setHeight(grid(3)); // boxes of both kinds stand in rows of one height
        return size;
    case CT_ItemViewItem:
        size.setHeight(std::max(size.height(), grid(3) * 9 / 10));
        return size;
    default:
        return size;
    }
}

// ---- signs and habits

QPixmap LightStyle::standardPixmap(StandardPixmap pixmap, const QStyleOption* option, const QWidget* widget) const
{
    const qreal ratio = widget ? widget->devicePixelRatioF() : 1;
    const QPixmap sign = paint::sign(pixmap, proxy()->pixelMetric(PM_MessageBoxIconSize, option, widget), ratio);
    return sign.isNull() ? QProxyStyle::standardPixmap(pixmap, option, widget) : sign;
}

QIcon LightStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const
{
    if (icon >= SP_MessageBoxInformation && icon <= SP_MessageBoxQuestion)
        return QIcon(standardPixmap(icon, option, widget));
    return QProxyStyle::standardIcon(icon, option, widget);
}

int LightStyle::styleHint(
    StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* returned) const
{
    switch (hint) {
    case SH_UnderlineShortcut:
        return 1; // access keys are always underlined: nobody has to know that Alt shows them
    // The same on every desktop: Yes stands before No, buttons of boxes have no icons, and a list opens below its box,
    // not over it.
    case SH_DialogButtonLayout:
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_ComboBox_Popup:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }
}

} // namespace forms::look
