// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPageSize>
#include <QSizeF>

namespace report {

inline constexpr double TwipsPerInch = 1440;

/// A sheet of paper, upright. Lengths are twips.
struct Paper {
    QPageSize page;
    double edge = 360; ///< what stays free along the edges, which a printer can't reach

    QSizeF size() const;
};

/// The paper of the user's country: Letter or A4.
Paper localPaper();

} // namespace report
