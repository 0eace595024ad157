// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <vector>

namespace help {

/// A line of the table of contents. A place is a page of the folder, with or without an anchor: "search.html#dates".
struct Chapter {
    int level; ///< 1 or 2
    QString title;
    QString place;
};

/// The pages of a folder. `contents.csv` (level, title, page) is their table of contents; `topics.csv` (number, page,
/// anchor) tells where each topic stands; `words.csv` (written, meant) what readers write for what the pages say.
class Book {
public:
    explicit Book(const QString& folder);

    const std::vector<Chapter>& contents() const { return contents_; }

    /// The place of a topic; that of the first chapter where the table doesn't know it.
    QString placeOf(const QString& topic) const;
    bool knows(const QString& topic) const { return topics_.contains(topic); }

    QStringList topics() const { return topics_.keys(); }
    QStringList pages() const;

    QUrl url(const QString& place) const;
    QString html(const QString& page) const;
    QString words() const;

private:
    QString folder_;
    std::vector<Chapter> contents_;
    QHash<QString, QString> topics_;
};

} // namespace help
