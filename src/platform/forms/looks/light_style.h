// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

class QStyleOptionButton;
class QStyleOptionComboBox;

namespace forms::look {

/// The names of widget properties: of a button that takes away what doesn't come back, and of an option that is shown
/// as large as the button of a menu.
inline constexpr char destructiveProperty[] = "destructive";
inline constexpr char choiceProperty[] = "choice";

/// The toolkit's plain style with flat, rounded buttons and boxes in the program's colours; for the layer itself. What
/// can be measured grows with the font. A button that answers Enter wherever the focus is, is filled, and no other.
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
    void drawChoice(const QStyleOptionButton& option, QPainter& painter, const QWidget* widget) const;
    void drawComboBox(const QStyleOptionComboBox& option, QPainter& painter, const QWidget* widget) const;
    void drawComboLabel(const QStyleOptionComboBox& option, QPainter& painter, const QWidget* widget) const;
};

} // namespace forms::look
