// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/search_fields.h"

void SearchFields::raise_Progress()
{
    pbSearch.setVisible(true);
    lblHead[3].setVisible(false);
}

void SearchFields::hide_Progress()
{
    pbSearch.setVisible(false);
    lblHead[3].setVisible(true);
}
