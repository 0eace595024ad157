// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/paper.h"

#include <cstdint>

#include <langinfo.h>

namespace report {

QSizeF Paper::size() const
{
    return page.size(QPageSize::Inch) * TwipsPerInch;
}

Paper localPaper()
{
    // Not by inches and centimetres: Canada and Mexico are metric and write on Letter.
    constexpr std::intptr_t letterHeight = 279; // millimetres
    const bool letter = reinterpret_cast<std::intptr_t>(nl_langinfo(_NL_PAPER_HEIGHT)) == letterHeight;
    return {QPageSize(letter ? QPageSize::Letter : QPageSize::A4)};
}

} // namespace report
