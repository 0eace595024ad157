// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/values/failure.h"

#include <QLocale>

/// Another decimal point and another capital i: the tests of values hold wherever the machine stands.
inline const bool standsElsewhere = (QLocale::setDefault(QLocale("tr_TR")), true);

/// The first words of the failure that `operation` ends in, as "Overflow"; empty where it succeeds.
template <typename Operation>
QString failureOf(Operation operation)
{
    try {
        operation();
        return {};
    } catch (const values::RuntimeFailure& failure) {
        return failure.text().section(u':', 0, 0);
    }
}
