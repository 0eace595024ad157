// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/glyph_pictures.h"

#include <QGlyphRun>
#include <QImage>
#include <QPainterPath>
#include <QRawFont>
#include <QTextLayout>

#include <algorithm>

namespace report {

namespace {

constexpr double pixelsPerTwip = 0.25; // 360 to the inch
constexpr char16_t firstSymbol = 0x2190; // arrows; below it there are letters and punctuation

bool mayHoldPictures(const QString& text)
{
    return std::any_of(text.begin(), text.end(), [](QChar character) { return character.unicode() >= firstSymbol; });
}

// A glyph without an outline is a picture or a blank.
bool hasNoOutlines(const QGlyphRun& run)
{
    const QRawFont font = run.rawFont();
    const QList<quint32> glyphs = run.glyphIndexes();
    return std::all_of(
        glyphs.begin(), glyphs.end(), [&font](quint32 glyph) { return font.pathForGlyph(glyph).isEmpty(); });
}

// The run in pixels, lest the painter be scaled.
QGlyphRun inPixels(QGlyphRun run)
{
    QRawFont font = run.rawFont();
    font.setPixelSize(font.pixelSize() * pixelsPerTwip);
    run.setRawFont(font);
    QList<QPointF> positions = run.positions();
    for (QPointF& position : positions)
        position *= pixelsPerTwip;
    run.setPositions(positions);
    return run;
}

QImage pictureOf(const QGlyphRun& run, const QRectF& place)
{
    QImage picture((place.size() * pixelsPerTwip).toSize(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.drawGlyphRun(-place.topLeft() * pixelsPerTwip, inPixels(run));
    return picture;
}

} // namespace

bool paintPictures(QPainter& painter, QPointF baseLine, const QString& text)
{
    if (!mayHoldPictures(text))
        return false;
    QTextLayout layout(text, painter.font());
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    const QList<QGlyphRun> runs = line.glyphRuns();
    if (std::none_of(runs.begin(), runs.end(), hasNoOutlines))
        return false;
    const QPointF origin = baseLine - QPointF(0, line.ascent());
    for (const QGlyphRun& run : runs) {
        const QRectF place = run.boundingRect();
        if (!hasNoOutlines(run))
            painter.drawGlyphRun(origin, run);
        else if (!place.isEmpty())
            painter.drawImage(place.translated(origin), pictureOf(run, place));
    }
    return true;
}

} // namespace report
