// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"

/// The pager of search results, which opens an asset in the asset screen.
class frmSearchResults : public forms::Form {
public:
    frmSearchResults();

    bool FromSearchScreen = false; ///< the load comes from the search button, not from a sort or the asset screen
    QString SelectedAsset; ///< the ID of the opened asset, as text

    /// Searches by what the search screen shows, and fills the first page.
    void load_From_Search_Screen();
};
