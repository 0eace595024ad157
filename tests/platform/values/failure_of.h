// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/values/failure.h"

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
