// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPageRanges>
#include <QString>

#include <vector>

namespace report {

/// What the print dialogue lets a user say of the pages.
struct PageChoice {
    bool currentOnly = false;
    QPageRanges ranges{}; ///< counted from 1; all pages where there is none
    QString set{}; ///< "odd" or "even", for sheets that are turned by hand and printed on both sides; else all of them
    bool lastFirst = false;
};

/// The pages of so many that are printed, counted from 0, in their order.
std::vector<int> chosenPages(const PageChoice& choice, int count, int currentPage);

} // namespace report
