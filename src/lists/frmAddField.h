// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/form.h"

/// The host of the names that the list editors put back into the asset screen when they finish.
class frmAddField : public forms::Form {
public:
    frmAddField()
        : forms::Form("frmAddField")
    {
    }

    QString SavedLocation; ///< the last real location shown in cmbLoc
    QString SavedCategory; ///< the last real category shown in cmbCat
};
