// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/glyph_pictures.h"

#include "platform/report/shown_text.h"

#include <QGlyphRun>
#include <QImage>
#include <QRawFont>
#include <QTextLayout>

#include <algorithm>
#include <map>
#include <tuple>

namespace report {

namespace {

constexpr double pixelsPerTwip = 0.25; // 360 to the inch
constexpr char16_t firstSymbol = 0x20E3; // a key cap; below it there are letters and punctuation
constexpr const char* pictureTables[] = {"CBLC", "COLR", "SVG ", "sbix"};
constexpr std::size_t mostKept = 1000; // some kilobytes each

bool mayHoldPictures(const QString& text)
{
    return std::any_of(text.begin(), text.end(), [](QChar character) { return character.unicode() >= firstSymbol; });
}

/// A glyph's picture, and what it covers as seen from the glyph's place on the base line.
struct GlyphPicture {
    QImage image;
    QRectF covered;
};

// Painted in pixels, lest the painter be scaled.
GlyphPicture painted(QRawFont font, quint32 glyph)
{
    font.setPixelSize(font.pixelSize() * pixelsPerTwip);
    const QRect covered = font.boundingRect(glyph).toAlignedRect();
    if (covered.isEmpty())
        return {};
    QGlyphRun run;
    run.setRawFont(font);
    run.setGlyphIndexes({glyph});
    run.setPositions({QPointF()});
    QImage image(covered.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.drawGlyphRun(-covered.topLeft(), run);
    return {image, QRectF(QPointF(covered.topLeft()) / pixelsPerTwip, QSizeF(covered.size()) / pixelsPerTwip)};
}

// Kept, since to paint one takes milliseconds, and a PDF file holds a picture once however often that is drawn.
const GlyphPicture& pictureOf(const QRawFont& font, quint32 glyph)
{
    static std::map<std::tuple<QString, int, double, quint32>, GlyphPicture> kept;
    if (kept.size() == mostKept)
        kept.clear();
    const auto [entry, isNew] = kept.try_emplace({font.familyName(), font.weight(), font.pixelSize(), glyph});
    if (isNew)
        entry->second = painted(font, glyph);
    return entry->second;
}

// Told by the font's tables: asked for the outline of a picture, the toolkit measures it wrongly from then on.
bool isOfPictures(const QGlyphRun& run)
{
    static std::map<QString, bool> known;
    const QRawFont font = run.rawFont();
    const auto [entry, isNew] = known.try_emplace(font.familyName());
    if (isNew)
        entry->second = std::any_of(std::begin(pictureTables), std::end(pictureTables),
            [&font](const char* table) { return !font.fontTable(table).isEmpty(); });
    return entry->second;
}

void drawPictures(QPainter& painter, QPointF origin, const QGlyphRun& run)
{
    const QList<quint32> glyphs = run.glyphIndexes();
    const QList<QPointF> positions = run.positions();
    for (qsizetype at = 0; at < glyphs.size(); ++at) {
        const GlyphPicture& picture = pictureOf(run.rawFont(), glyphs[at]);
        if (!picture.image.isNull())
            painter.drawImage(picture.covered.translated(origin + positions[at]), picture.image);
    }
}

} // namespace

bool paintPictures(QPainter& painter, QPointF baseLine, const QString& text)
{
    if (!mayHoldPictures(text))
        return false;
    QTextLayout layout;
    layout.setFont(painter.font());
    ShownText(text).layOutIn(layout);
    QTextOption option;
    option.setTextDirection(painter.layoutDirection());
    layout.setTextOption(option);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    const QList<QGlyphRun> runs = line.glyphRuns();
    if (std::none_of(runs.begin(), runs.end(), isOfPictures))
        return false;
    const QPointF origin = baseLine - QPointF(0, line.ascent());
    for (const QGlyphRun& run : runs) {
        if (isOfPictures(run))
            drawPictures(painter, origin, run);
        else
            painter.drawGlyphRun(origin, run);
    }
    return true;
}

} // namespace report
