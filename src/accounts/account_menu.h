// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/values/integer.h"
#include "shared/option_menu.h"

/// The menu in front of the account screen.
class AccountMenu : public OptionMenu {
public:
    enum Mode { Add, Update, Delete }; ///< by the indices of optEdit

    /// The Mode of the account screen: Add at first.
    values::Integer AccountMode;

protected:
    using OptionMenu::OptionMenu;
};
