// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/help/book.h"
#include "platform/help/words.h"

#include <optional>

namespace help {

/// The pages of a book in passages, a heading with what stands below it, and which words are in them. Places are
/// counted in characters of the page's document.
class Passages {
public:
    struct Page {
        QString name;
        QString title;
        QString text;
        qsizetype body = 0; ///< where the title that stands on it ends
    };
    struct Placed {
        std::size_t term;
        qsizetype at;
        qsizetype length;
        double weight; ///< more in a title or heading
    };
    struct Passage {
        std::size_t page;
        qsizetype at;
        qsizetype end;
        std::vector<Placed> words; ///< without the little ones
        double length = 0; ///< the weight of all its words
    };
    struct Share {
        std::size_t passage;
        double weight;
    };
    struct Term {
        std::vector<Share> shares; ///< in each passage that has it
        double rarity = 0;
    };

    explicit Passages(const Book& book);

    const std::vector<Passage>& all() const { return passages_; }
    const Page& page(const Passage& passage) const { return pages_[passage.page]; }
    const Thesaurus& thesaurus() const { return thesaurus_; }
    const Term& term(std::size_t index) const { return terms_[index]; }
    std::size_t terms() const { return terms_.size(); }
    std::optional<std::size_t> termOf(const QString& stem) const;

    /// The stems of all terms, in order.
    const QStringList& stems() const { return stems_; }

    /// What a term says for a passage: more the rarer it is, the oftener it is there and the shorter the passage is.
    double value(const Term& term, const Share& share) const;

private:
    void read(const QString& name, const QString& html);
    void open(qsizetype at);
    std::size_t count(const QString& stem, double weight);
    void add(const QString& text, qsizetype at, double weight);
    void weigh();

    Thesaurus thesaurus_;
    std::vector<Page> pages_;
    std::vector<Passage> passages_;
    std::vector<Term> terms_;
    QHash<QString, std::size_t> termOf_;
    QStringList stems_;
    double usualLength_ = 0;
};

} // namespace help
