// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/help/words.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <numeric>

namespace help {

namespace {

constexpr int leastStem = 3; // letters; what would be shorter keeps its ending

bool endsWith(const QString& word, const char* ending)
{
    return word.endsWith(QLatin1String(ending));
}

QString withoutPlural(const QString& word)
{
    if (word.size() > 4 && endsWith(word, "ies"))
        return word.chopped(3) + u'y';
    const bool isPlural = word.size() > leastStem && endsWith(word, "s") && !endsWith(word, "ss");
    return isPlural ? word.chopped(1) : word;
}

// "printing" and "printed", but not "thing" and "need"; "stopped" goes with "stop", and "spelled" with "spell".
QString withoutVerbEnding(const QString& word)
{
    const bool isPast = endsWith(word, "ed") && !endsWith(word, "eed");
    const QString stem = word.chopped(isPast ? 2 : endsWith(word, "ing") ? 3 : 0);
    static const QRegularExpression vowel(QStringLiteral("[aeiouy]"));
    if (stem == word || stem.size() < leastStem || !stem.contains(vowel))
        return word;
    static const QRegularExpression doubled(QStringLiteral("([^lsz])\\1$"));
    return stem.size() > leastStem && doubled.match(stem).hasMatch() ? stem.chopped(1) : stem;
}

QString stemOf(const QString& word)
{
    const QString folded = word.toCaseFolded().remove(u'\'').remove(u'’');
    const QString stem = withoutVerbEnding(withoutPlural(folded));
    return stem.size() > leastStem && endsWith(stem, "e") ? stem.chopped(1) : stem;
}

QStringList stemsOf(const QString& text)
{
    QStringList stems;
    for (const Word& word : wordsOf(text))
        stems.append(word.stem);
    return stems;
}

} // namespace

std::vector<Word> wordsOf(const QString& text)
{
    static const QRegularExpression word(QStringLiteral("[\\p{L}\\p{N}]+(?:['’][\\p{L}\\p{N}]+)*"));
    std::vector<Word> words;
    for (auto found = word.globalMatch(text); found.hasNext();) {
        const QRegularExpressionMatch each = found.next();
        words.push_back({stemOf(each.captured()), each.capturedStart(), each.capturedLength()});
    }
    return words;
}

bool isSlipOf(const QString& written, const QString& word, int slips)
{
    if (std::abs(written.size() - word.size()) > slips)
        return false;
    // The distance of each beginning of the one from each beginning of the other, of which three lines are needed.
    std::array<std::vector<int>, 3> lines;
    lines.fill(std::vector<int>(static_cast<std::size_t>(word.size()) + 1));
    std::iota(lines[0].begin(), lines[0].end(), 0);
    for (qsizetype row = 1; row <= written.size(); ++row) {
        std::rotate(lines.begin(), lines.begin() + 2, lines.end());
        auto& [line, above, twoAbove] = lines;
        line[0] = static_cast<int>(row);
        for (qsizetype column = 1; column <= word.size(); ++column) {
            const auto here = static_cast<std::size_t>(column);
            const bool isSame = written[row - 1] == word[column - 1];
            line[here] = std::min({above[here] + 1, line[here - 1] + 1, above[here - 1] + (isSame ? 0 : 1)});
            if (row > 1 && column > 1 && written[row - 1] == word[column - 2] && written[row - 2] == word[column - 1])
                line[here] = std::min(line[here], twoAbove[here - 2] + 1);
        }
    }
    return lines[0].back() <= slips;
}

Thesaurus::Thesaurus(const QString& table)
{
    const QStringList lines = table.split(u'\n', Qt::SkipEmptyParts);
    for (const QString& line : lines.mid(1)) {
        const QStringList meant = stemsOf(line.section(u',', 1));
        for (const QString& written : stemsOf(line.section(u',', 0, 0)))
            if (meant.isEmpty())
                little_.insert(written);
            else
                meant_[written] += meant;
    }
}

} // namespace help
