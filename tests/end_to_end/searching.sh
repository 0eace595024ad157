# SPDX-License-Identifier: GPL-3.0-or-later
# All assets are found, sorted, paged and printed, and a screen reader is told the order.

said() { grep -qx "$1" "$Place/said"; }

search_all() {
    step "all assets, sorted and paged"
    go frmSearch alt+s
    shot search-empty
    keys Return
    answer all-question Return
    see frmSearchResults results-all
    expect "select count(*) from Print" 23
    click frmSearchResults Make
    until_true "the order read out" said "23 Assets Found! Sorted By Make"
    keys Right Left
    expect "select ID from Print limit 1" 23
    keys Next
    shot results-page-2
    keys alt+p
    report_saved AssetReport found-assets "Maker 01" "Maker 23" "Total Pages: 4"
}

# Every third one indoor, outdoor and mobile, the makers numbered backwards.
household searching "$(assets 23 "case i % 3 when 1 then 'Indoor' when 2 then 'Outdoor' else 'Mobile' end,
    case i % 3 when 2 then 'Barn' else 'Attic' end, 'Tools',
    case i when 7 then 'Lamp with a shade of pleated silk and brass' else 'Item ' || i end, 1950 + i * 3,
    printf('Maker %02d', 24 - i), 'Model ' || i, 'SN-' || i, '1/2/2020', '\$' || i || '.00', 'No', 'None',
    'None', 'New'")"
"$Here/screen_reader.py" listen >"$Place/said" &
Listener=$!
start_at_menu
search_all
tell_to_end
kill "$Listener" # which has the toolkit hand on keys otherwise
