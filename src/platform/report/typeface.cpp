// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/typeface.h"

#include <QFontMetricsF>
#include <QTextLayout>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

namespace report {

namespace {

constexpr double twipsPerPoint = 20;
constexpr double leastPoints = 6;
constexpr double pointSteps = 4; // sizes go by quarters of a point

// Kerning can make a line wider than its characters are together, but by less than this.
constexpr double kerningSlack = 0.99;

// ---- the widths of single characters

// Characters that stand one by one beside each other: of these the width of a text is the sum.
struct Range {
    char16_t first;
    char16_t last;
};
constexpr Range simpleRanges[] = {{0x0020, 0x007E}, {0x00A0, 0x00AC}, {0x00AE, 0x02FF}, // Latin
    {0x0370, 0x0482}, {0x048A, 0x052F}, // Greek, Cyrillic
    {0x1E00, 0x1FFF}, {0x2010, 0x2027}, {0x2030, 0x205E}, {0x20A0, 0x20BF}, {0x2100, 0x214F}, {0x3000, 0x3029},
    {0x3030, 0x3096}, {0x309B, 0x9FFF}, // East Asian
    {0xAC00, 0xD7A3}, {0xFF01, 0xFF60}};
constexpr char16_t firstIdeograph = 0x3000;

bool isSimple(char16_t character)
{
    return std::any_of(std::begin(simpleRanges), std::end(simpleRanges),
        [character](Range range) { return range.first <= character && character <= range.last; });
}

// The widths of a weight's characters in parts of the type's size, measured when they are first met. A text in which a
// character isn't simple is left to the toolkit.
class Widths {
public:
    explicit Widths(bool bold)
        : metrics_(fontOf({measuredPoints, bold}))
    {
        widths_.fill(unknown);
    }

    static const Widths& of(bool bold)
    {
        static const Widths plain(false);
        static const Widths heavy(true);
        return bold ? heavy : plain;
    }

    float operator[](QChar character) const
    {
        float& width = widths_[character.unicode()];
        if (width == unknown)
            width = isSimple(character.unicode()) ? measured(character) : notSimple;
        return width;
    }

    bool areSimple(QStringView text) const
    {
        return std::all_of(text.begin(), text.end(), [this](QChar character) { return (*this)[character] >= 0; });
    }

    double sum(QStringView text) const
    {
        double sum = 0;
        for (const QChar character : text)
            sum += double((*this)[character]);
        return sum;
    }

private:
    static constexpr double measuredPoints = 50;
    static constexpr float unknown = -1;
    static constexpr float notSimple = -2;

    float measured(QChar character) const
    {
        return float(metrics_.horizontalAdvance(character) / (measuredPoints * twipsPerPoint));
    }

    QFontMetricsF metrics_;
    mutable std::array<float, 0x10000> widths_;
};

// ---- breaking lines

bool mayBreakAfter(QChar character)
{
    return character == u' ' || character == u'-' || character.unicode() >= firstIdeograph;
}

// Breaks one paragraph behind blanks and hyphens and around ideographs; a longer word wherever the line is full.
void breakSimple(QStringView text, const Widths& widths, double width, std::vector<QStringView>& lines)
{
    qsizetype start = 0;
    qsizetype opportunity = 0;
    double filled = 0;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const double advance = double(widths[text[at]]);
        if (text[at].unicode() >= firstIdeograph)
            opportunity = at;
        if (filled + advance > width && text[at] != u' ' && at > start) {
            const qsizetype end = opportunity > start ? opportunity : at;
            lines.push_back(text.mid(start, end - start));
            start = end;
            filled = widths.sum(text.mid(start, at - start));
        }
        filled += advance;
        if (mayBreakAfter(text[at]))
            opportunity = at + 1;
    }
    lines.push_back(text.mid(start));
}

void breakByToolkit(QStringView text, Type type, double width, std::vector<QStringView>& lines)
{
    QTextLayout layout(text.toString(), fontOf(type));
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        lines.push_back(text.mid(line.textStart(), line.textLength()));
    }
    layout.endLayout();
}

void breakParagraph(QStringView text, Type type, double width, std::vector<QStringView>& lines)
{
    const Widths& widths = Widths::of(type.bold);
    if (text.isEmpty())
        lines.push_back(text);
    else if (widths.areSimple(text))
        breakSimple(text, widths, width * kerningSlack / (type.points * twipsPerPoint), lines);
    else
        breakByToolkit(text, type, width, lines);
}

// ---- fonts

QFont makeFont(Type type)
{
    QFont font;
    font.setFamilies({QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans")});
    font.setStyleHint(QFont::SansSerif);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setPixelSize(static_cast<int>(std::lround(type.points * twipsPerPoint)));
    font.setBold(type.bold);
    return font;
}

double fittingPoints(double points, double needed, double available)
{
    return std::floor(points * available / needed * pointSteps) / pointSteps;
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
    return QFontMetricsF(fontOf(type)).horizontalAdvance(text);
}

Fitted fit(const QString& text, Type type, double width)
{
    const Widths& widths = Widths::of(type.bold);
    if (widths.areSimple(text) && widths.sum(text) * type.points * twipsPerPoint <= width * kerningSlack)
        return {text, type};
    const QString line = text.simplified();
    const double needed = widthOf(line, type);
    if (needed <= width)
        return {line, type};
    const Type smaller{std::max(leastPoints, fittingPoints(type.points, needed, width)), type.bold};
    return {QFontMetricsF(fontOf(smaller)).elidedText(line, Qt::ElideRight, width), smaller};
}

std::vector<QStringView> linesOf(const QString& text, Type type, double width)
{
    std::vector<QStringView> lines;
    qsizetype start = 0;
    while (start <= text.size()) {
        const qsizetype lineEnd = text.indexOf(u'\n', start);
        const qsizetype end = lineEnd < 0 ? text.size() : lineEnd;
        QStringView paragraph = QStringView(text).mid(start, end - start);
        if (paragraph.endsWith(u'\r'))
            paragraph.chop(1);
        breakParagraph(paragraph, type, width, lines);
        start = end + 1;
    }
    return lines;
}

} // namespace report
