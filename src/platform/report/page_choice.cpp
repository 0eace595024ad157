// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/page_choice.h"

#include <algorithm>

namespace report {

namespace {

bool isInSet(int number, const QString& set)
{
    if (set == QStringLiteral("odd"))
        return number % 2 != 0;
    return set != QStringLiteral("even") || number % 2 == 0;
}

} // namespace

std::vector<int> chosenPages(const PageChoice& choice, int count, int currentPage)
{
    if (choice.currentOnly)
        return {std::min(currentPage, count - 1)};
    std::vector<int> chosen;
    for (int number = 1; number <= count; ++number)
        if ((choice.ranges.isEmpty() || choice.ranges.contains(number)) && isInSet(number, choice.set))
            chosen.push_back(number - 1);
    if (choice.lastFirst)
        std::reverse(chosen.begin(), chosen.end());
    return chosen;
}

} // namespace report
