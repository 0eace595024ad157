// SPDX-License-Identifier: GPL-3.0-or-later
// By itself, so that a program with other screens doesn't need the closing.
#include "shared/conventions.h"
#include "shared/ways.h"

void conventions::confirm_Close(forms::Form& form, const std::function<void()>& saveFirst)
{
    if (!confirmed("Are You Sure You Want To Close Kestrill?", forms::box::Question + forms::box::YesNo))
        return;
    if (saveFirst)
        saveFirst();
    ways::frmProgress().show();
    form.hide();
}
