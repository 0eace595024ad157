// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/help/word_index.h"

#include <algorithm>
#include <cmath>

namespace help {

namespace {

constexpr double closeOther = 0.5; // a word that begins like it or means the same, where the word itself is there, too
constexpr double closeAlone = 0.8;
constexpr qsizetype leastBeginning = 4; // letters: "car" is no card
constexpr double togetherShare = 0.6; // of what two words are worth
constexpr double phraseFactor = 2;
constexpr double leastShare = 0.2; // of the best page, below which a page isn't told
constexpr qsizetype excerptBefore = 40; // characters
constexpr qsizetype excerptLength = 130;

// Where most of what was sought stands together: the first of these words, or the count of all where there is none.
std::size_t densest(const std::vector<double>& worths)
{
    std::size_t best = worths.size();
    double most = 0;
    double here = 0;
    for (std::size_t at = 0, from = 0; at < worths.size(); ++at) {
        here += worths[at];
        if (worths[at] == 0) {
            here = 0;
            from = at + 1;
        }
        if (here > most) {
            most = here;
            best = from;
        }
    }
    return best;
}

// The text around a place of a passage, from its beginning where that is near.
QString excerptOf(const QString& passage, qsizetype at)
{
    const bool isNear = at <= excerptBefore;
    const qsizetype from = isNear ? 0 : passage.lastIndexOf(u' ', at - excerptBefore) + 1;
    QString excerpt = passage.mid(from, excerptLength).remove(QChar::ObjectReplacementCharacter).simplified();
    if (from + excerptLength < passage.size())
        excerpt = excerpt.left(std::max<qsizetype>(excerpt.lastIndexOf(u' '), 1)) + QStringLiteral(" …");
    return isNear ? excerpt : QStringLiteral("… ") + excerpt;
}

} // namespace

WordIndex::WordIndex(const Book& book)
    : passages_(book)
{
}

// ---- what was meant

bool WordIndex::add(Sought& sought, const QString& stem, double closeness) const
{
    const std::optional<std::size_t> term = passages_.termOf(stem);
    if (!term)
        return false;
    double& here = sought.closeness[*term];
    here = std::max(here, closeness);
    sought.worth = std::max(sought.worth, closeness * passages_.term(*term).rarity);
    return true;
}

// The word itself, and what it means.
void WordIndex::addWord(Sought& sought, const QString& stem, double closeness) const
{
    const bool isThere = add(sought, stem, closeness);
    for (const QString& meant : passages_.thesaurus().meant(stem))
        add(sought, meant, closeness * (isThere ? closeOther : closeAlone));
}

void WordIndex::addLonger(Sought& sought, const QString& stem, double closeness) const
{
    const QStringList& stems = passages_.stems();
    for (auto each = std::upper_bound(stems.begin(), stems.end(), stem); each != stems.end(); ++each) {
        if (!each->startsWith(stem))
            return;
        add(sought, *each, closeness);
    }
}

// One slip of the hand, or two in a long word that begins rightly.
void WordIndex::addSlips(Sought& sought, const QString& stem) const
{
    const auto spelledLike = [&stem](const QString& word, int slips) {
        return word.size() >= leastBeginning && (slips == 1 || word.front() == stem.front())
            && isSlipOf(stem, word, slips);
    };
    for (const auto& [slips, least] : {std::pair(1, 4), {2, 7}}) {
        if (sought.worth > 0 || stem.size() < least)
            return;
        for (const QString& word : passages_.stems() + passages_.thesaurus().words())
            if (spelledLike(word, slips))
                addWord(sought, word, closeAlone);
    }
}

WordIndex::Sought WordIndex::understand(const QString& stem) const
{
    Sought sought{std::vector<double>(passages_.terms())};
    addWord(sought, stem, 1);
    const bool isKnown = sought.worth > 0;
    if (stem.size() >= leastBeginning)
        addLonger(sought, stem, isKnown ? closeOther : 1);
    addSlips(sought, stem);
    if (sought.worth == 0)
        addLonger(sought, stem, 1);
    return sought;
}

// The little words count where there are no others. "back up" is "backup", too.
std::vector<WordIndex::Sought> WordIndex::understandAll(const QString& text) const
{
    const std::vector<Word> words = wordsOf(text);
    const auto isLittle = [this](const Word& word) { return passages_.thesaurus().isLittle(word.stem); };
    const bool haveOnlyLittle = std::all_of(words.begin(), words.end(), isLittle);
    std::vector<Sought> all;
    for (std::size_t index = 0; index < words.size(); ++index) {
        if (isLittle(words[index]) && !haveOnlyLittle)
            continue;
        Sought& sought = all.emplace_back(understand(words[index].stem));
        if (index > 0)
            add(sought, words[index - 1].stem + words[index].stem, 1);
        if (index + 1 < words.size())
            add(sought, words[index].stem + words[index + 1].stem, 1);
    }
    return all;
}

// ---- what answers it

void WordIndex::rate(const Sought& sought, std::vector<Rating>& ratings) const
{
    std::vector<double> values(ratings.size());
    for (std::size_t term = 0; term < sought.closeness.size(); ++term) {
        const Passages::Term& found = passages_.term(term);
        if (sought.closeness[term] > 0)
            for (const Passages::Share& share : found.shares) {
                double& value = values[share.passage];
                value = std::max(value, sought.closeness[term] * passages_.value(found, share));
            }
    }
    for (std::size_t passage = 0; passage < values.size(); ++passage) {
        ratings[passage].score += values[passage];
        ratings[passage].found += std::min(values[passage], sought.worth);
    }
}

// For each two words that were sought one behind the other and stand so here, at the best of their places.
double WordIndex::together(const Passages::Passage& passage, const std::vector<Sought>& sought)
{
    double sum = 0;
    for (std::size_t index = 1; index < sought.size(); ++index) {
        const Sought& first = sought[index - 1];
        const Sought& second = sought[index];
        double best = 0;
        for (std::size_t at = 1; at < passage.words.size(); ++at) {
            const double closeness =
                std::min(first.closeness[passage.words[at - 1].term], second.closeness[passage.words[at].term]);
            best = std::max(best, closeness * passage.words[at].weight);
        }
        sum += togetherShare * std::sqrt(best) * (first.worth + second.worth) / 2;
    }
    return sum;
}

std::vector<double> WordIndex::rate(const QString& text, const std::vector<Sought>& sought) const
{
    const auto& passages = passages_.all();
    std::vector<Rating> ratings(passages.size());
    double worth = 0;
    for (const Sought& each : sought) {
        rate(each, ratings);
        worth += each.worth;
    }
    std::vector<double> scores(passages.size());
    for (std::size_t index = 0; index < passages.size(); ++index) {
        const Passages::Passage& passage = passages[index];
        if (ratings[index].found == 0)
            continue;
        scores[index] = (ratings[index].score + together(passage, sought)) * ratings[index].found / worth;
        const QStringView here = QStringView(passages_.page(passage).text).mid(passage.at, passage.end - passage.at);
        if (text.contains(u' ') && here.contains(text, Qt::CaseInsensitive))
            scores[index] *= phraseFactor;
    }
    return scores;
}

// ---- how it is told

std::vector<double> WordIndex::worths(const Passages::Passage& passage, const std::vector<Sought>& sought)
{
    std::vector<double> worths;
    for (const Passages::Placed& word : passage.words) {
        double worth = 0;
        for (const Sought& each : sought)
            worth = std::max(worth, each.closeness[word.term] * each.worth);
        worths.push_back(worth);
    }
    return worths;
}

// What follows each other on one line is shown as a whole.
Hit WordIndex::hit(const Passages::Passage& passage, const std::vector<Sought>& sought) const
{
    const Passages::Page& page = passages_.page(passage);
    const std::vector<double> worth = worths(passage, sought);
    qsizetype at = passage.at;
    qsizetype end = at;
    for (std::size_t word = densest(worth); word < worth.size() && worth[word] > 0; ++word) {
        const Passages::Placed& here = passage.words[word];
        if (end == passage.at)
            at = here.at;
        else if (QStringView(page.text).mid(end, here.at - end).contains(u'\n'))
            break;
        end = here.at + here.length;
    }
    const qsizetype begin = std::max(passage.at, page.body); // the title is told already
    const QString excerpt = excerptOf(page.text.mid(begin, passage.end - begin), std::max<qsizetype>(at - begin, 0));
    return {page.name, page.title, excerpt, static_cast<int>(at), static_cast<int>(end - at)};
}

std::vector<Hit> WordIndex::find(const QString& text) const
{
    const std::vector<Sought> sought = understandAll(text);
    const std::vector<double> scores = rate(text.simplified(), sought);
    std::vector<std::size_t> best; // the best passage of each page
    for (std::size_t passage = 0; passage < scores.size(); ++passage) {
        if (best.empty() || passages_.all()[best.back()].page != passages_.all()[passage].page)
            best.push_back(passage);
        else if (scores[passage] > scores[best.back()])
            best.back() = passage;
    }
    std::stable_sort(best.begin(), best.end(),
        [&scores](std::size_t one, std::size_t other) { return scores[one] > scores[other]; });
    std::vector<Hit> hits;
    for (const std::size_t passage : best)
        if (scores[passage] > 0 && scores[passage] >= leastShare * scores[best.front()])
            hits.push_back(hit(passages_.all()[passage], sought));
    return hits;
}

} // namespace help
