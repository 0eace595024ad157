// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/help/passages.h"

#include <QTextBlock>
#include <QTextDocument>

#include <cmath>

namespace help {

namespace {

constexpr double titleWeight = 8;
constexpr double titleWeightBelow = 2; // in the passages further down its page
constexpr double headingWeight = 4;
constexpr double textWeight = 1;
constexpr double saturation = 2; // from about so many on, more of the same word say little
constexpr double lengthShare = 0.4; // how much of a passage's length counts against it

} // namespace

Passages::Passages(const Book& book)
    : thesaurus_(book.words())
{
    for (const QString& page : book.pages())
        read(page, book.html(page));
    weigh();
}

void Passages::read(const QString& name, const QString& html)
{
    QTextDocument document;
    document.setHtml(html);
    pages_.push_back({name, document.metaInformation(QTextDocument::DocumentTitle), document.toPlainText()});
    open(0);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        if (level == 1)
            pages_.back().body = block.position() + block.length();
        if (level > 1)
            open(block.position());
        const double weight = level == 1 ? titleWeight : level > 1 ? headingWeight : textWeight;
        add(block.text(), block.position(), weight);
        passages_.back().end = block.position() + block.length() - 1;
    }
}

void Passages::open(qsizetype at)
{
    const bool isFirst = passages_.empty() || passages_.back().page != pages_.size() - 1;
    passages_.push_back({pages_.size() - 1, at, at, {}});
    if (isFirst)
        return;
    for (const Word& word : wordsOf(pages_.back().title))
        count(word.stem, titleWeightBelow);
}

std::size_t Passages::count(const QString& stem, double weight)
{
    const auto known = termOf_.constFind(stem);
    const std::size_t term = known == termOf_.constEnd() ? terms_.size() : *known;
    if (known == termOf_.constEnd()) {
        terms_.emplace_back();
        termOf_.insert(stem, term);
    }
    const std::size_t passage = passages_.size() - 1;
    std::vector<Share>& shares = terms_[term].shares;
    if (shares.empty() || shares.back().passage != passage)
        shares.push_back({passage, 0});
    shares.back().weight += weight;
    passages_.back().length += weight;
    return term;
}

void Passages::add(const QString& text, qsizetype at, double weight)
{
    for (const Word& word : wordsOf(text)) {
        const std::size_t term = count(word.stem, weight);
        if (!thesaurus_.isLittle(word.stem))
            passages_.back().words.push_back({term, at + word.at, word.length, weight});
    }
}

void Passages::weigh()
{
    const auto count = static_cast<double>(passages_.size());
    for (const Passage& passage : passages_)
        usualLength_ += passage.length / count;
    for (Term& term : terms_) {
        const auto having = static_cast<double>(term.shares.size());
        term.rarity = std::log(1 + (count - having + 0.5) / (having + 0.5));
    }
    stems_ = termOf_.keys();
    stems_.sort();
}

std::optional<std::size_t> Passages::termOf(const QString& stem) const
{
    const auto known = termOf_.constFind(stem);
    return known == termOf_.constEnd() ? std::nullopt : std::optional(*known);
}

double Passages::value(const Term& term, const Share& share) const
{
    const double length = 1 - lengthShare + lengthShare * passages_[share.passage].length / usualLength_;
    return term.rarity * share.weight * (saturation + 1) / (share.weight + saturation * length);
}

} // namespace help
