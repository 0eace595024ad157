// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/page_choice.h"

#include <QRegularExpression>

#include <algorithm>

namespace report {

namespace {

bool isInSet(int number, PageSet set)
{
    return set == PageSet::All || (set == PageSet::Odd) == (number % 2 != 0);
}

bool isInRanges(int number, const std::optional<QPageRanges>& ranges)
{
    return !ranges || ranges->contains(number);
}

} // namespace

QPageRanges pagesNamed(const QString& text)
{
    static const QRegularExpression range(QStringLiteral("^\\s*(\\d+)\\s*(?:[-\u2013]\\s*(\\d+)\\s*)?$"));
    QPageRanges named;
    for (const QString& part : text.split(u',')) {
        const QRegularExpressionMatch match = range.match(part);
        const int first = match.captured(1).toInt();
        const int last = match.hasCaptured(2) ? match.captured(2).toInt() : first;
        if (std::min(first, last) < 1)
            return {};
        named.addRange(std::min(first, last), std::max(first, last));
    }
    return named;
}

std::vector<int> chosenPages(const PageChoice& choice, int count, int currentPage)
{
    if (choice.currentOnly)
        return {std::min(currentPage, count - 1)};
    std::vector<int> chosen;
    for (int number = 1; number <= count; ++number)
        if (isInRanges(number, choice.ranges) && isInSet(number, choice.set))
            chosen.push_back(number - 1);
    if (choice.lastFirst)
        std::reverse(chosen.begin(), chosen.end());
    return chosen;
}

} // namespace report
