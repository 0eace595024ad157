// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"

/// The menu of the printed reports, and the staging of what they print.
class frmPrint : public forms::Form {
public:
    frmPrint();

    /// The search screen was entered for a custom printout; during a report run, a row was staged.
    bool CustomPrint = false;

    /// Empties the staging table and raises the progress display of the search screen.
    void clear_Print_Database();

    /// Takes the progress display away.
    void hide_Print_Progress();
};
