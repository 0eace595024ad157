// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include <vector>

/// English words, as the search of the help compares them.
namespace help {

/// A word of a text, without its ending: one stem for singular and plural, present and past.
struct Word {
    QString stem;
    qsizetype at;
    qsizetype length;
};

std::vector<Word> wordsOf(const QString& text);

/// Whether one comes from the other by so many slips of the hand at most: a letter too many, left out or mistaken, or
/// two that are swapped.
bool isSlipOf(const QString& written, const QString& word, int slips);

/// What readers write and how the pages put it. A line of the table has the words of either, parted by blanks; words
/// that say nothing, as "how" and "the", have nothing beside them.
class Thesaurus {
public:
    explicit Thesaurus(const QString& table);

    bool isLittle(const QString& stem) const { return little_.contains(stem); }
    QStringList meant(const QString& stem) const { return meant_.value(stem); }
    QStringList words() const { return meant_.keys(); } ///< that mean others

private:
    QSet<QString> little_;
    QHash<QString, QStringList> meant_;
};

} // namespace help
