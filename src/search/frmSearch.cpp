// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/frmSearch.h"

frmSearch::frmSearch()
    : forms::Form("frmSearch")
{
}

void frmSearch::clear_listboxes() { }
