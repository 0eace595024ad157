// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/brush.h"

#include "platform/report/glyph_pictures.h"

#include <QTextLayout>

#include <algorithm>

namespace report {

namespace {

constexpr double lineWidth = 10; // half a point

double shareOf(Align align)
{
    return align == Align::Left ? 0 : align == Align::Centre ? 0.5 : 1;
}

// The painter would pick single points out of a picture that it shows much smaller.
QImage notLargerThan(const QImage& image, const QSize& shown)
{
    const bool shrinks = !shown.isEmpty() && shown.width() < image.width();
    return shrinks ? image.scaled(shown, Qt::IgnoreAspectRatio, Qt::SmoothTransformation) : image;
}

// A line runs as its paragraph does, whatever it begins with.
Qt::LayoutDirection directionOf(QStringView line, const QString& text)
{
    const QStringView before = QStringView(text).first(line.data() - text.data());
    const QStringView paragraph = QStringView(text).mid(before.lastIndexOf(u'\n') + 1);
    return paragraph.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
}

bool isBelowGrowing(const Section& section, const Place& place)
{
    return section.growing && place.top > section.growing->place.top;
}

} // namespace

Brush::Brush(QPainter& painter, const Document& document, int page, int pages, std::vector<Spoken>* spoken)
    : painter_(painter)
    , document_(document)
    , page_(page)
    , pages_(pages)
    , spoken_(spoken)
{
    painter_.setPen(QPen(Qt::black, lineWidth));
    painter_.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter_.setLayoutDirection(Qt::LayoutDirectionAuto);
}

void Brush::paint(const Section& section, int row) const
{
    for (const Picture& picture : section.pictures)
        draw(picture);
    for (const Label& label : section.labels)
        write(label);
    for (const Field& field : section.fields)
        write(formatted(document_.rows->text(row, field.column), field.format), field.place, field.type, field.align);
    for (const Box& box : section.boxes)
        painter_.drawRect(QRectF(box.place.left, box.place.top, box.place.width, box.place.height));
    drawRules(section, false, 0);
}

void Brush::paintBelow(const Section& section, double shift) const
{
    drawRules(section, true, shift);
}

void Brush::drawRules(const Section& section, bool below, double shift) const
{
    for (const Rule& rule : section.rules)
        if (isBelowGrowing(section, rule.place) == below)
            painter_.drawLine(QLineF(
                rule.place.left, rule.place.top + shift, rule.place.left + rule.place.width, rule.place.top + shift));
}

void Brush::paintLines(const Field& field, int row, int firstLine, int lines, double top) const
{
    const QString text = formatted(document_.rows->text(row, field.column), field.format);
    const std::vector<QStringView> all = linesOf(text, field.type, field.place.width);
    const double height = lineHeightOf(field.type);
    double baseLine = top + ascentOf(field.type);
    for (int number = firstLine; number < firstLine + lines; ++number, baseLine += height) {
        const QStringView line = all[static_cast<std::size_t>(number)];
        painter_.setLayoutDirection(line.isEmpty() ? Qt::LayoutDirectionAuto : directionOf(line, text));
        writeLine(line.toString(), field.place.left, baseLine, field.type);
    }
    painter_.setLayoutDirection(Qt::LayoutDirectionAuto);
}

QString Brush::decoded(const QString& text) const
{
    if (!text.contains(u'%'))
        return text;
    return QString(text)
        .replace(QStringLiteral("%p"), QString::number(page_ + 1))
        .replace(QStringLiteral("%P"), QString::number(pages_))
        .replace(QStringLiteral("%d"), document_.moment.date)
        .replace(QStringLiteral("%T"), document_.moment.time);
}

// A label stands on every page, and most of them beside every row: those are laid out once.
void Brush::write(const Label& label) const
{
    const Place& place = label.place;
    const QTextLayout* laidOut = spoken_ || label.text.contains(u'%') ? nullptr : laidOutOnce(label.text, label.type);
    if (!laidOut || laidOut->lineAt(0).naturalTextWidth() > place.width) {
        write(decoded(label.text), place, label.type, label.align);
        return;
    }
    const QTextLine line = laidOut->lineAt(0);
    const double left = place.left + (place.width - line.naturalTextWidth()) * shareOf(label.align);
    laidOut->draw(&painter_, {left, place.top + ascentOf(label.type) - line.ascent()});
}

void Brush::write(const QString& text, const Place& place, Type type, Align align) const
{
    if (spoken_) {
        say(text, place.left, place.top + ascentOf(type));
        return;
    }
    const Fitted fitted = fit(text, type, place.width);
    const double free = align == Align::Left ? 0 : place.width - widthOf(fitted.text, fitted.type);
    // Smaller type stands on the same base line as its neighbours.
    writeLine(fitted.text, place.left + free * shareOf(align), place.top + ascentOf(type), fitted.type);
}

void Brush::writeLine(const QString& text, double left, double baseLine, Type type) const
{
    if (spoken_)
        say(text, left, baseLine);
    if (spoken_ || text.isEmpty())
        return;
    setType(type);
    if (!paintPictures(painter_, {left, baseLine}, text))
        painter_.drawText(QPointF(left, baseLine), text);
}

void Brush::say(const QString& text, double left, double baseLine) const
{
    const QString words = text.simplified();
    if (!words.isEmpty())
        spoken_->push_back({painter_.transform().map(QPointF(left, baseLine)), words});
}

void Brush::setType(Type type) const
{
    if (type == type_)
        return;
    painter_.setFont(fontOf(type));
    type_ = type;
}

void Brush::draw(const Picture& picture) const
{
    if (spoken_)
        return;
    const Place& place = picture.place;
    QRectF target(QPointF(), QSizeF(picture.image.size()).scaled(place.width, place.height, Qt::KeepAspectRatio));
    target.moveCenter({place.left + place.width / 2, place.top + place.height / 2});
    const QSize shown = painter_.deviceTransform().mapRect(target).size().toSize();
    painter_.drawImage(target, notLargerThan(picture.image, shown));
}

} // namespace report
