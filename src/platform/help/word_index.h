// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/help/book.h"

namespace help {

/// A page that was found.
struct Hit {
    QString page;
    QString title;
    QString excerpt; ///< the words around the first one that was sought
};

/// The words of all pages, for the search. A word finds itself, its plural or singular, and what begins with it.
class WordIndex {
public:
    explicit WordIndex(const Book& book);

    /// The pages that hold most of the words, the best first: a word in a title counts more than one in a heading, and
    /// that more than one in the text.
    std::vector<Hit> find(const QString& sought) const;

private:
    struct Word {
        QString stem;
        qsizetype at; // in the text
        int weight;
    };
    struct Page {
        QString name;
        QString title;
        QString text;
        std::vector<Word> words;
    };
    struct Match;

    static Page read(const QString& name, const QString& html);
    static void addWords(Page& page, const QString& text, qsizetype at, int weight);
    static Match match(const Page& page, const QStringList& stems, const QString& joined);

    std::vector<Page> pages_;
};

} // namespace help
