// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/shown_text.h"
#include "platform/report/typeface.h"
#include "platform/report/widths.h"

#include <algorithm>

namespace report {

namespace {

constexpr char16_t firstIdeograph = 0x3000;

bool mayBreakBetween(QChar before, QChar behind)
{
    return before == u' ' || before == u'-' || before.unicode() >= firstIdeograph || behind.unicode() >= firstIdeograph;
}

// Behind a blank or a hyphen, around an ideograph, or where the line is full.
qsizetype lastOpportunity(QStringView text, qsizetype start, qsizetype full)
{
    for (qsizetype at = full; at > start; --at)
        if (mayBreakBetween(text[at - 1], text[at]))
            return at;
    return full;
}

constexpr qsizetype notKnown = -1;

// Where the line that begins at `start` ends; not known where a width isn't. Every character of a long report goes
// through here.
qsizetype endOfLine(QStringView text, qsizetype start, const CharacterWidths& widths, double width)
{
    double filled = 0;
    for (qsizetype at = start; at < text.size(); ++at) {
        const auto advance = double(widths.known(text[at]));
        if (advance < 0)
            return notKnown;
        filled += advance;
        if (filled > width && text[at] != u' ' && at > start)
            return lastOpportunity(text, start, at);
    }
    return text.size();
}

// False where a character isn't simple.
bool breakSimple(QStringView text, const CharacterWidths& widths, double width, std::vector<QStringView>& lines)
{
    qsizetype start = 0;
    do {
        qsizetype end = endOfLine(text, start, widths, width);
        if (end == notKnown) {
            if (!widths.areSimple(text)) // which measures them all
                return false;
            end = endOfLine(text, start, widths, width);
        }
        lines.push_back(text.mid(start, end - start));
        start = end;
    } while (start < text.size());
    return true;
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
    const std::size_t before = lines.size();
    if (breakSimple(text, widths, width * kerningSlack / (type.points * TwipsPerPoint), lines))
        return;
    lines.resize(before);
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
