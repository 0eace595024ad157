// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/typeface.h"

#include "platform/report/emoji.h"
#include "platform/report/shown_text.h"
#include "platform/report/widths.h"

#include <QFontMetricsF>
#include <QTextBoundaryFinder>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <map>
#include <memory>
#include <tuple>

namespace report {

namespace {

constexpr double leastPoints = 6;
constexpr double pointSteps = 4; // sizes go by quarters of a point

QFont makeFont(Type type)
{
    QFont font;
    font.setFamilies({QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans")});
    font.setStyleHint(QFont::SansSerif);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setPixelSize(static_cast<int>(std::lround(type.points * TwipsPerPoint)));
    font.setBold(type.bold);
    return font;
}

// The toolkit cuts it as if the first font that holds an emoji were the one that is shown.
QString cut(const QString& text, Type type, double width)
{
    constexpr QChar ellipsis(0x2026);
    QString kept = QFontMetricsF(fontOf(type)).elidedText(text, Qt::ElideRight, width);
    if (widthOf(kept, type) <= width)
        return kept;
    const QString whole = kept.endsWith(ellipsis) ? kept.chopped(1) : kept;
    QTextBoundaryFinder clusters(QTextBoundaryFinder::Grapheme, whole);
    clusters.toEnd();
    while (widthOf(kept, type) > width && clusters.toPreviousBoundary() > 0)
        kept = whole.first(clusters.position()) + ellipsis;
    return kept;
}

double fittingPoints(double points, double needed, double available)
{
    return std::floor(points * available / needed * pointSteps) / pointSteps;
}

std::unique_ptr<QTextLayout> laidOut(const QString& text, Type type)
{
    auto layout = std::make_unique<QTextLayout>(text, fontOf(type));
    layout->setCacheEnabled(true);
    layout->beginLayout();
    layout->createLine();
    layout->endLayout();
    return layout;
}

} // namespace

const QFont& fontOf(Type type)
{
    static std::map<std::pair<double, bool>, QFont> fonts;
    const auto [entry, isNew] = fonts.try_emplace({type.points, type.bold});
    if (isNew)
        entry->second = makeFont(type);
    return entry->second;
}

double ascentOf(Type type)
{
    return QFontMetricsF(fontOf(type)).ascent();
}

double lineHeightOf(Type type)
{
    return QFontMetricsF(fontOf(type)).height();
}

double widthOf(const QString& text, Type type)
{
    if (!hasEmoji(text))
        return QFontMetricsF(fontOf(type)).horizontalAdvance(text);
    QTextLayout layout;
    layout.setFont(fontOf(type));
    ShownText(text).layOutIn(layout);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    return line.naturalTextWidth();
}

const QTextLayout* laidOutOnce(const QString& text, Type type)
{
    if (!CharacterWidths::of(type.bold).areSimple(text))
        return nullptr;
    static std::map<std::tuple<QString, double, bool>, std::unique_ptr<QTextLayout>> kept;
    const auto [entry, isNew] = kept.try_emplace({text, type.points, type.bold});
    if (isNew)
        entry->second = laidOut(text, type);
    return entry->second.get();
}

Fitted fit(const QString& text, Type type, double width)
{
    const CharacterWidths& widths = CharacterWidths::of(type.bold);
    if (widths.areSimple(text) && widths.sum(text) * type.points * TwipsPerPoint <= width * kerningSlack)
        return {text, type};
    const QString line = text.simplified();
    const double needed = widthOf(line, type);
    if (needed <= width)
        return {line, type};
    const Type smaller{std::max(leastPoints, fittingPoints(type.points, needed, width)), type.bold};
    return {cut(line, smaller, width), smaller};
}

} // namespace report
