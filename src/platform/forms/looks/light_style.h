// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

class QStyleOptionComboBox;

namespace forms::look {

/// The name of the widget property of a button that is the screen's main action.
inline constexpr char mainActionProperty[] = "mainAction";

/// The toolkit's plain style with flat, rounded buttons and boxes in the program's colours; for the layer itself. What
/// can be measured grows with the font.
class LightStyle : public QProxyStyle {
public:
    LightStyle();

    void drawPrimitive(
        PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override;
    void drawControl(
        ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
        const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
        const QWidget* widget) const override;
    QSize sizeFromContents(
        ContentsType type, const QStyleOption* option, const QSize& contents, const QWidget* widget) const override;
    QPixmap standardPixmap(StandardPixmap pixmap, const QStyleOption* option, const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(
        StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* returned) const override;

private:
    static bool drawFrame(
        PrimitiveElement element, const QStyleOption& option, QPainter& painter, const QWidget* widget);
    void drawComboBox(const QStyleOptionComboBox& option, QPainter& painter, const QWidget* widget) const;
    void drawComboLabel(const QStyleOptionComboBox& option, QPainter& painter, const QWidget* widget) const;
};

} // namespace forms::look
