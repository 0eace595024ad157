// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/frmSearchResults.h"

frmSearchResults::frmSearchResults()
    : forms::Form("frmSearchResults")
{
}

void frmSearchResults::load_From_Search_Screen() { }
