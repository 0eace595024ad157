// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/paper.h"

#include <QLocale>

namespace report {

QSizeF Paper::size() const
{
    return page.size(QPageSize::Inch) * TwipsPerInch;
}

Paper localPaper()
{
    // The countries that measure in inches are those that write on Letter, Great Britain aside.
    const bool letter = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return {QPageSize(letter ? QPageSize::Letter : QPageSize::A4)};
}

} // namespace report
