// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPageRanges>
#include <QString>

#include <optional>
#include <vector>

namespace report {

/// Pages by their numbers, for sheets that are turned by hand and printed on both sides.
enum class PageSet { All, Odd, Even };

/// What the print dialogue lets a user say of the pages.
struct PageChoice {
    bool currentOnly = false;
    std::optional<QPageRanges> ranges{}; ///< counted from 1; all pages where nothing is said
    PageSet set = PageSet::All;
    bool lastFirst = false;
};

/// The pages that a text names: "1, 4-6", "6-4" as well. None where a part of it is no page.
QPageRanges pagesNamed(const QString& text);

/// The pages of so many that are printed, counted from 0, in their order.
std::vector<int> chosenPages(const PageChoice& choice, int count, int currentPage);

} // namespace report
