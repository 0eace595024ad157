// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/help/word_index.h"

#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>
#include <utility>

namespace help {

namespace {

constexpr int titleWeight = 20;
constexpr int headingWeight = 5;
constexpr int textWeight = 1;
constexpr int mostInText = 5; // more of the same word say no more
constexpr int excerptBefore = 40; // characters
constexpr int excerptLength = 130;

QRegularExpressionMatchIterator wordsOf(const QString& text)
{
    static const QRegularExpression word(QStringLiteral("[\\p{L}\\p{N}]+"));
    return word.globalMatch(text);
}

// Singular and plural are one word.
QString stemOf(const QString& word)
{
    QString stem = word.toCaseFolded();
    if (stem.size() > 4 && stem.endsWith(QStringLiteral("ies")))
        return stem.chopped(3) + u'y';
    if (stem.size() > 3 && stem.endsWith(u's') && !stem.endsWith(QStringLiteral("ss")))
        stem.chop(1);
    return stem;
}

QStringList stemsOf(const QString& text)
{
    QStringList stems;
    for (auto words = wordsOf(text); words.hasNext();)
        stems.append(stemOf(words.next().captured()));
    stems.removeDuplicates();
    return stems;
}

QString excerptOf(const QString& text, qsizetype at)
{
    qsizetype from = at <= excerptBefore ? 0 : text.indexOf(u' ', at - excerptBefore) + 1;
    if (from > at)
        from = at;
    QString excerpt = text.mid(from, excerptLength);
    if (from + excerptLength < text.size())
        excerpt = excerpt.left(std::max<qsizetype>(excerpt.lastIndexOf(u' '), 1)) + QStringLiteral(" …");
    return from > 0 ? QStringLiteral("… ") + excerpt : excerpt;
}

} // namespace

struct WordIndex::Match {
    int words = 0; // how many of those sought are there
    int weight = 0;
    qsizetype at = -1;
};

WordIndex::WordIndex(const Book& book)
{
    for (const QString& page : book.pages())
        pages_.push_back(read(page, book.html(page)));
}

WordIndex::Page WordIndex::read(const QString& name, const QString& html)
{
    QTextDocument document;
    document.setHtml(html);
    Page page{name, document.metaInformation(QTextDocument::DocumentTitle), {}, {}};
    addWords(page, page.title, 0, titleWeight);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QString text = block.text().remove(QChar::ObjectReplacementCharacter).simplified();
        if (text.isEmpty())
            continue;
        const bool isHeading = block.blockFormat().headingLevel() > 0;
        if (isHeading && text == page.title)
            continue;
        addWords(page, text, page.text.size(), isHeading ? headingWeight : textWeight);
        page.text += text + u' ';
    }
    return page;
}

void WordIndex::addWords(Page& page, const QString& text, qsizetype at, int weight)
{
    for (auto words = wordsOf(text); words.hasNext();) {
        const QRegularExpressionMatch word = words.next();
        page.words.push_back({stemOf(word.captured()), at + word.capturedStart(), weight});
    }
}

WordIndex::Match WordIndex::match(const Page& page, const QStringList& stems, const QString& joined)
{
    Match match;
    const auto count = [&page, &match](const QString& stem) {
        int inText = 0;
        bool found = false;
        for (const Word& word : page.words) {
            if (!word.stem.startsWith(stem))
                continue;
            found = true;
            if (word.weight != textWeight || ++inText <= mostInText)
                match.weight += word.weight;
            if (word.weight != titleWeight && (match.at < 0 || word.at < match.at))
                match.at = word.at;
        }
        return found;
    };
    for (const QString& stem : stems)
        match.words += count(stem) ? 1 : 0;
    // "back up" is "backup", too.
    if (stems.size() > 1 && count(joined))
        match.words = static_cast<int>(stems.size());
    return match;
}

std::vector<Hit> WordIndex::find(const QString& sought) const
{
    const QStringList stems = stemsOf(sought);
    std::vector<std::pair<Match, const Page*>> found;
    for (const Page& page : pages_)
        if (const Match here = match(page, stems, stems.join(QString())); here.words > 0)
            found.emplace_back(here, &page);
    std::stable_sort(found.begin(), found.end(), [](const auto& one, const auto& other) {
        return std::pair(one.first.words, one.first.weight) > std::pair(other.first.words, other.first.weight);
    });
    std::vector<Hit> hits;
    hits.reserve(found.size());
    for (const auto& [match, page] : found)
        hits.push_back({page->name, page->title, excerptOf(page->text, std::max<qsizetype>(match.at, 0))});
    return hits;
}

} // namespace help
