// SPDX-License-Identifier: GPL-3.0-or-later
// The results by keys: through the rows, from page to page, and to another order.
#include "search/frmSearchResults.h"

// The rows are no stops of the Tab key: the cursor keys reach them, from wherever the focus is.
void frmSearchResults::any_KeyDown(int& KeyCode)
{
    namespace key = forms::key;
    switch (KeyCode) {
    case key::Up:
        step_Through_Rows(-1);
        break;
    case key::Down:
        step_Through_Rows(1);
        break;
    case key::Left:
    case key::Right:
        if (!key::isWithControl())
            return; // for the caret
        sort_By_Neighbour(KeyCode == key::Left ? -1 : 1);
        break;
    case key::PageUp:
        turn_Page(cmdPrevious);
        break;
    case key::PageDown:
        turn_Page(cmdNext);
        break;
    default:
        return;
    }
    KeyCode = key::Refused;
}

int frmSearchResults::rowInFocus() const
{
    for (int row = 0; row < Rows; ++row)
        if (txtMore[row].hasFocus())
            return row;
    return -1;
}

void frmSearchResults::step_Through_Rows(int direction)
{
    int filled = 0;
    while (filled < Rows && txtMore[filled].isEnabled())
        ++filled;
    const int row = rowInFocus();
    const int next = row < 0 && direction < 0 ? filled - 1 : row + direction;
    if (next >= 0 && next < filled)
        txtMore[next].setFocus();
}

// By the column beside the one sorted by: a header is a label, which only the mouse reaches.
void frmSearchResults::sort_By_Neighbour(int direction)
{
    const int header = headerSortedBy() + direction;
    const int row = rowInFocus();
    if (header > 0 && header < lblSubHead.count())
        lblSubHead_Click(header);
    if (row >= 0)
        txtMore[row].setFocus();
}

// By key, the user stays in the row.
void frmSearchResults::turn_Page(forms::CommandButton& button)
{
    const int row = rowInFocus();
    button.press();
    if (row >= 0)
        txtMore[row].setFocus();
}
