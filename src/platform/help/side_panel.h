// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/help/word_index.h"

#include <QWidget>

#include <functional>
#include <optional>

class QLabel;
class QLineEdit;
class QListWidget;
class QStackedWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace help {

/// What leads to the pages: the table of contents, and in its place what the search over all pages has found, as long
/// as there are words in its box.
class SidePanel : public QWidget {
public:
    SidePanel(const Book& book, QWidget* parent);

    std::function<void(const QString& place)> Chosen;
    std::function<void(const Hit& hit)> Found; ///< chosen among the hits

    /// Marks the chapter of the page that is shown.
    void mark(const QString& place);

    /// What the table of contents takes, so that none of its titles is cut.
    int widthOfContents() const;

    void toSearch();
    void toContents();

private:
    void look();
    void fill();
    void answer();
    void layOut();
    void search();
    void openHit(int row);

    const Book& book_;
    std::optional<WordIndex> index_; // made by the first search
    std::vector<Hit> hits_;
    QLineEdit* sought_;
    QLabel* state_;
    QStackedWidget* pages_;
    QTreeWidget* contents_;
    QListWidget* found_;
};

} // namespace help
