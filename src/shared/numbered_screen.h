// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/screens/form.h"
#include "platform/values/integer.h"

/// The number of the screen in front. It begins with that of the start.
inline values::Integer CurrentScreen = 20;

/// A screen that has a number, which it writes into CurrentScreen.
class NumberedScreen : public forms::Form {
public:
    const int Number;

protected:
    NumberedScreen(const QString& name, int number)
        : forms::Form(name)
        , Number(number)
    {
    }
};
