// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/shown_text.h"
#include "platform/report/typeface.h"
#include "platform/report/widths.h"

#include <algorithm>

namespace report {

namespace {

constexpr char16_t firstIdeograph = 0x3000;

bool mayBreakAfter(QChar character)
{
    return character == u' ' || character == u'-' || character.unicode() >= firstIdeograph;
}

// Breaks one paragraph behind blanks and hyphens and around ideographs; a longer word wherever the line is full.
void breakSimple(QStringView text, const CharacterWidths& widths, double width, std::vector<QStringView>& lines)
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

// ---- what isn't simple

// Scripts that write words without blanks between them are left to the toolkit, and so is what stands in columns.
bool hasWords(QChar character)
{
    switch (character.script()) {
    case QChar::Script_Thai:
    case QChar::Script_Lao:
    case QChar::Script_Khmer:
    case QChar::Script_Myanmar:
        return false;
    default:
        return character.unicode() >= u' ';
    }
}

bool isIdeograph(QChar character)
{
    return character.unicode() >= firstIdeograph && character.unicode() < 0xA000;
}

// A word with the hyphen behind it or the blanks, which need no room at the end of a line.
struct Word {
    qsizetype end; // of the word
    qsizetype next;
};

Word wordAt(QStringView text, qsizetype start)
{
    qsizetype end = start;
    while (end < text.size() && text[end] != u' ') {
        const bool isLast = text[end] == u'-' || isIdeograph(text[end]);
        ++end;
        if (isLast || (end < text.size() && isIdeograph(text[end])))
            break;
    }
    qsizetype next = end;
    while (next < text.size() && text[next] == u' ')
        ++next;
    return {end, next};
}

// False where a word is wider than a line.
bool breakByWords(QStringView text, Type type, double width, std::vector<QStringView>& lines)
{
    WordWidths& widths = WordWidths::of(type);
    const double blank = widths[u" "];
    qsizetype start = 0;
    double filled = 0;
    for (qsizetype at = 0; at < text.size();) {
        const Word word = wordAt(text, at);
        const double advance = widths[text.mid(at, word.end - at)];
        if (advance > width)
            return false;
        if (filled + advance > width) {
            lines.push_back(text.mid(start, at - start));
            start = at;
            filled = 0;
        }
        filled += advance + blank * static_cast<double>(word.next - word.end);
        at = word.next;
    }
    lines.push_back(text.mid(start));
    return true;
}

void breakByToolkit(QStringView text, Type type, double width, std::vector<QStringView>& lines)
{
    const ShownText shown(text);
    QTextLayout layout;
    layout.setFont(fontOf(type));
    shown.layOutIn(layout);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    qsizetype start = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        const qsizetype end = shown.inSource(line.textStart() + line.textLength());
        lines.push_back(text.mid(start, end - start));
        start = end;
    }
    layout.endLayout();
}

void breakOther(QStringView text, Type type, double width, std::vector<QStringView>& lines)
{
    const std::size_t before = lines.size();
    if (std::all_of(text.begin(), text.end(), hasWords) && breakByWords(text, type, width * kerningSlack, lines))
        return;
    lines.resize(before);
    breakByToolkit(text, type, width, lines);
}

void breakParagraph(QStringView text, Type type, double width, std::vector<QStringView>& lines)
{
    const CharacterWidths& widths = CharacterWidths::of(type.bold);
    if (text.isEmpty())
        lines.push_back(text);
    else if (widths.areSimple(text))
        breakSimple(text, widths, width * kerningSlack / (type.points * TwipsPerPoint), lines);
    else
        breakOther(text, type, width, lines);
}

} // namespace

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
