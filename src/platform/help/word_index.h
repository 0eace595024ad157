// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/help/passages.h"

namespace help {

/// A page that was found, and the words for which it was: their place is counted in characters of its document.
struct Hit {
    QString page;
    QString title;
    QString excerpt; ///< the text around them
    int at;
    int length;
};

/// The search over all pages. Each passage is rated as search engines do (BM25), and more where words stand beside each
/// other as they were sought. A page is as good as its best passage.
class WordIndex {
public:
    explicit WordIndex(const Book& book);

    /// The pages for a word, a few or a sentence, the best first. A word finds its other forms and what begins with it,
    /// what the book's table of words puts beside it, and, where nobody knows it, what is spelled nearly so.
    std::vector<Hit> find(const QString& sought) const;

private:
    /// A word that was sought: how near each term comes to it, from 0 to 1, and what it is worth where it is found.
    struct Sought {
        std::vector<double> closeness;
        double worth = 0;
    };
    struct Rating {
        double score = 0;
        double found = 0; // of what all words are worth
    };

    std::vector<Sought> understandAll(const QString& text) const;
    Sought understand(const QString& stem) const;
    void addWord(Sought& sought, const QString& stem, double closeness) const;
    void addLonger(Sought& sought, const QString& stem, double closeness) const;
    void addSlips(Sought& sought, const QString& stem) const;
    bool add(Sought& sought, const QString& stem, double closeness) const;

    std::vector<double> rate(const QString& text, const std::vector<Sought>& sought) const;
    void rate(const Sought& sought, std::vector<Rating>& ratings) const;
    static double together(const Passages::Passage& passage, const std::vector<Sought>& sought);
    static std::vector<double> worths(const Passages::Passage& passage, const std::vector<Sought>& sought);
    Hit hit(const Passages::Passage& passage, const std::vector<Sought>& sought) const;

    Passages passages_;
};

} // namespace help
