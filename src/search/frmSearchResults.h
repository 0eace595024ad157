// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/form.h"

/// The pager of search results, which opens an asset in the asset screen.
class frmSearchResults : public forms::Form {
public:
    frmSearchResults()
        : forms::Form("frmSearchResults")
    {
    }

    QString SelectedAsset; ///< the ID of the opened asset, as text
};
