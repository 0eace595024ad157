// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/looks/style_painting.h"

#include "platform/forms/looks/theme.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>
#include <iterator>

namespace forms::look::paint {

namespace {

constexpr qreal cornerRadius = 4;
constexpr qreal focusWidth = 2;

class Painting {
public:
    explicit Painting(QPainter& painter)
        : painter_(painter)
    {
        painter_.save();
        painter_.setRenderHint(QPainter::Antialiasing);
    }
    ~Painting() { painter_.restore(); }
    Painting(const Painting&) = delete;
    Painting& operator=(const Painting&) = delete;

private:
    QPainter& painter_;
};

bool isOn(const QStyleOption& option, QStyle::StateFlag flag)
{
    return option.state & flag;
}

bool showsFocus(const QStyleOption& option)
{
    return isOn(option, QStyle::State_HasFocus) && isOn(option, QStyle::State_Enabled);
}

struct Frame {
    QColor line;
    qreal width;
};

Frame frameOf(const QStyleOption& option)
{
    if (!isOn(option, QStyle::State_Enabled))
        return {colours().faded, 1};
    return showsFocus(option) ? Frame{colours().accent, focusWidth} : Frame{colours().line, 1};
}

QColor colourOf(Ink ink)
{
    return ink.isDestructive ? colours().danger : colours().accent;
}

// What is written on a button.
QColor letters(const QStyleOptionButton& option, Ink ink)
{
    const bool enabled = isOn(option, QStyle::State_Enabled);
    if (ink.isFilled)
        return colours().field;
    if (ink.isDestructive && enabled)
        return colours().danger;
    return option.palette.color(enabled ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText);
}

QColor markOf(const QStyleOption& option)
{
    return isOn(option, QStyle::State_Enabled) ? colours().accent : colours().faded;
}

QPixmap canvas(int size, qreal ratio)
{
    QPixmap pixmap(QSize(size, size) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    return pixmap;
}

// The icon in its own colours, or in that of the caption on a button that stands out.
QPixmap tinted(const QStyleOptionButton& option, qreal ratio, Ink ink)
{
    const bool enabled = isOn(option, QStyle::State_Enabled);
    QPixmap picture = option.icon.pixmap(option.iconSize, ratio, enabled ? QIcon::Normal : QIcon::Disabled);
    if (ink.isFilled || (ink.isDestructive && enabled)) {
        QPainter painter(&picture);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(QRect(QPoint(), option.iconSize), letters(option, ink));
    }
    return picture;
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
        {QStyle::SP_MessageBoxWarning, u'!', colours().warning},
        {QStyle::SP_MessageBoxCritical, u'\u00D7', colours().danger},
    };
    const auto* found =
        std::find_if(std::begin(signs), std::end(signs), [pixmap](const Sign& sign) { return sign.pixmap == pixmap; });
    return found == std::end(signs) ? nullptr : found;
}

} // namespace

void panel(QPainter& painter, const QRect& rect, const QColor& face, const QColor& line, qreal width)
{
    const Painting painting(painter);
    painter.setPen(QPen(line, width));
    painter.setBrush(face);
    const qreal inset = width / 2;
    painter.drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), cornerRadius, cornerRadius);
}

void button(QPainter& painter, const QStyleOption& option, Ink ink)
{
    const Colours& theme = colours();
    QColor face = ink.isFilled ? colourOf(ink) : option.palette.color(QPalette::Button);
    if (!isOn(option, QStyle::State_Enabled))
        face = theme.ground.lighter(103);
    else if (isOn(option, QStyle::State_Sunken))
        face = theme.pressed;
    else if (isOn(option, QStyle::State_MouseOver))
        face = face.lighter(ink.isFilled ? 115 : 103);
    Frame frame = frameOf(option);
    if (isOn(option, QStyle::State_Enabled) && (ink.isFilled || ink.isDestructive))
        frame.line = colourOf(ink);
    panel(painter, option.rect, face, frame.line, frame.width);
    // On a face of its own colour a frame alone would not show the focus.
    if (ink.isFilled && showsFocus(option)) {
        constexpr int gap = 3;
        panel(painter, option.rect.adjusted(gap, gap, -gap, -gap), Qt::transparent, theme.field, 1);
    }
}

void buttonLabel(QPainter& painter, const QStyleOptionButton& option, Ink ink)
{
    const int flags = Qt::AlignVCenter | Qt::TextShowMnemonic | Qt::TextSingleLine;
    const int words = option.fontMetrics.size(flags, option.text).width();
    const int gap = option.icon.isNull() ? 0 : option.iconSize.width() + (option.text.isEmpty() ? 0 : captionGap);
    const bool iconBehind = option.direction == Qt::RightToLeft;
    QRect place = option.rect;
    place.setLeft(place.left() + std::max(0, (place.width() - gap - words) / 2));
    if (gap > 0) {
        const int left = iconBehind ? place.left() + words + gap - option.iconSize.width() : place.left();
        const QRect square(
            QPoint(left, place.top() + (place.height() - option.iconSize.height()) / 2 + 1), option.iconSize);
        painter.drawPixmap(square, tinted(option, painter.device()->devicePixelRatioF(), ink));
    }
    painter.setPen(letters(option, ink));
    painter.drawText(place.adjusted(iconBehind ? 0 : gap, 0, 0, 0), flags, option.text);
}

void choice(QPainter& painter, const QStyleOption& option)
{
    const bool enabled = isOn(option, QStyle::State_Enabled);
    QColor face = enabled ? colours().buttonFace : colours().ground.lighter(103);
    if (enabled && isOn(option, QStyle::State_MouseOver))
        face = face.lighter(103);
    const QColor line = enabled ? colours().line : colours().faded;
    panel(painter, option.rect, face, enabled && isOn(option, QStyle::State_On) ? colours().accent : line, 1);
}

void box(QPainter& painter, const QStyleOption& option)
{
    const Frame frame = frameOf(option);
    panel(painter, option.rect, option.palette.color(QPalette::Base), frame.line, frame.width);
}

void square(QPainter& painter, const QStyleOption& option)
{
    box(painter, option);
    if (!isOn(option, QStyle::State_On))
        return;
    const Painting painting(painter);
    const QRectF place(option.rect);
    painter.setPen(QPen(markOf(option), place.width() / 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const auto at = [&place](qreal x, qreal y) {
        return QPointF(place.x() + x * place.width(), place.y() + y * place.height());
    };
    const QPointF strokes[] = {at(0.25, 0.52), at(0.43, 0.70), at(0.75, 0.31)};
    painter.drawPolyline(strokes, 3);
}

void ring(QPainter& painter, const QStyleOption& option)
{
    const Painting painting(painter);
    const Frame frame = frameOf(option);
    const qreal inset = frame.width / 2;
    painter.setPen(QPen(frame.line, frame.width));
    painter.setBrush(option.palette.color(QPalette::Base));
    painter.drawEllipse(QRectF(option.rect).adjusted(inset, inset, -inset, -inset));
    if (!isOn(option, QStyle::State_On))
        return;
    const qreal edge = option.rect.width() * 0.28;
    painter.setPen(Qt::NoPen);
    painter.setBrush(markOf(option));
    painter.drawEllipse(QRectF(option.rect).adjusted(edge, edge, -edge, -edge));
}

void focusFrame(QPainter& painter, const QRect& rect)
{
    panel(painter, rect, Qt::transparent, colours().accent, focusWidth);
}

void arrow(QPainter& painter, const QRect& place, Heading heading, const QColor& colour)
{
    const Painting painting(painter);
    const qreal length = std::min({place.width(), place.height(), grid(2)}) / 4.0;
    painter.translate(QRectF(place).center());
    constexpr int turns[] = {180, 0, 90, -90}; // of an arrow that points down
    painter.rotate(turns[static_cast<int>(heading)]);
    painter.setPen(QPen(colour, length / 2.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF strokes[] = {{-length, -length / 2}, {0, length / 2}, {length, -length / 2}};
    painter.drawPolyline(strokes, 3);
}

void scrollBar(QPainter& painter, const QStyleOptionSlider& option, const QRect& back, const QRect& forth,
    const QRect& way, const QRect& handle)
{
    const bool upright = option.orientation == Qt::Vertical;
    painter.fillRect(option.rect, colours().buttonFace);
    const bool moves = option.maximum > option.minimum && isOn(option, QStyle::State_Enabled);
    const QColor colour = moves ? colours().line : colours().faded;
    arrow(painter, back, upright ? Heading::Up : Heading::Left, colour);
    arrow(painter, forth, upright ? Heading::Down : Heading::Right, colour);
    if (!moves || way.isEmpty())
        return;
    const int inset = std::max(2, grid(1) / 3);
    const bool held = option.activeSubControls & QStyle::SC_ScrollBarSlider && isOn(option, QStyle::State_Sunken);
    const QRect bar = upright ? handle.adjusted(inset, 1, -inset, -1) : handle.adjusted(1, inset, -1, -inset);
    const QColor face = held ? colours().accent : colours().line;
    panel(painter, bar, face, face, 1);
}

QPixmap sign(QStyle::StandardPixmap pixmap, int size, qreal ratio)
{
    const Sign* sign = signOf(pixmap);
    if (!sign)
        return {};
    QPixmap picture = canvas(size, ratio);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(sign->colour);
    const QRectF disc(1, 1, size - 2, size - 2);
    painter.drawEllipse(disc);
    QFont font = QApplication::font();
    font.setPixelSize(size * 5 / 8);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(colours().field);
    painter.drawText(disc, Qt::AlignCenter, sign->mark);
    return picture;
}

} // namespace forms::look::paint
