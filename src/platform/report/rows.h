// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace report {

/// The rows that a report prints, taken when it was opened.
class Rows {
public:
    virtual ~Rows() = default;
    virtual int count() const = 0;
    virtual QString text(int row, int column) const = 0;
};

} // namespace report
