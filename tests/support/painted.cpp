// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/painted.h"

#include "support/files.h"
#include "support/print.h"

#include <QFontMetricsF>
#include <QPainter>

static QString told(double number)
{
    return QString::number(std::round(number * 10) / 10, 'g', 8) + ' ';
}

void Painted::expect(const QString& list, const QString& name) const
{
    const QString part = partOf(list, name);
    QStringList lines;
    for (const auto& [kind, left, width, rest] : things_) {
        const QString edge = part.section('\n', lines.size(), lines.size()).section(' ', 0, 0);
        const double share = width == 0 ? 0 : edge == "right" ? 1 : edge == "middle" ? 0.5 : 0;
        lines += (share > 0 ? edge : kind) + ' ' + told(left + share * width) + rest;
    }
    EXPECT_EQ(lines.join('\n'), part) << name.toStdString();
}

void Painted::drawImage(const QRectF& place, const QImage& image, const QRectF&, Qt::ImageConversionFlags)
{
    keep("picture", place, QString("of %1 %2").arg(image.width()).arg(image.height()));
}

void Painted::drawLines(const QLineF* lines, int count)
{
    for (const QLineF* line = lines; line != lines + count; ++line)
        keep("line", {line->p1(), line->p2()}, "pen " + told(painter()->pen().widthF()));
}

void Painted::drawRects(const QRectF* places, int count)
{
    for (const QRectF* place = places; place != places + count; ++place)
        keep("rectangle", *place, "pen " + told(painter()->pen().widthF()));
}

void Painted::drawTextItem(const QPointF& base, const QTextItem& item)
{
    constexpr double twipsPerPoint = 20;
    const QFontMetricsF metrics(item.font());
    const QPointF at = painter()->worldTransform().map(base - QPointF(0, metrics.ascent()));
    const QString type = told(item.font().pixelSize() / twipsPerPoint) + (item.font().bold() ? "bold " : "");
    const double width = metrics.horizontalAdvance(item.text()) * painter()->worldTransform().m11();
    things_.push_back({"left", at.x(), width, told(at.y()) + type + item.text()});
}

void Painted::keep(const char* kind, const QRectF& place, const QString& rest)
{
    EXPECT_TRUE(painter()->renderHints().testFlags(QPainter::Antialiasing | QPainter::SmoothPixmapTransform));
    const QRectF at = painter()->worldTransform().mapRect(place);
    things_.push_back({kind, at.left(), 0, (told(at.top()) + told(at.width()) + told(at.height()) + rest).trimmed()});
}
