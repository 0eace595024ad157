# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2034,SC2154 # the files of this folder share their variables
# Assets are searched by a word, by the lists and all of them, sorted, paged and opened.

search_by_word() {
    step "a search by a word"
    go frmSearch alt+s
    shot search-empty
    text 'kestrel A'
    shot search-word
    go frmSearchResults Return
    shot results-one
    expect "select ID, Type from Print" '7|Lamp with a shade of pleated silk and brass'
}

search_all() {
    step "all assets, sorted and paged"
    go frmSearch alt+s
    keys Return
    answer all-question Return
    see frmSearchResults results-all
    expect "select count(*) from Print" 23
    click frmSearchResults 'lblSubHead(5)'
    expect "select ID from Print limit 1" 23
    keys Next
    shot results-page-2
    click frmSearchResults cmdNext
    shot results-page-3
    keys alt+p
    report_saved AssetReport found-assets "Maker 01" "Maker 23" "Total Pages: 4"
}

search_by_lists() {
    step "a search by the lists"
    click frmSearchResults cmdBack
    pick frmSearch cmbArea search-area-list 4 4
    pick frmSearch cmbLocation search-location-list 3
    shot search-lists
    click frmSearch cmdContinue
    see frmSearchResults results-outdoor
    expect "select count(*), min(Area), max(Location) from Print" '8|Outdoor|Barn'
}

open_by_keys() {
    step "a result opened by keys"
    keys Down Down
    shot results-row-chosen
    go frmAddUpDel Return
    shot asset-found
    keys alt+m
    answer found-leave Return
    wait_screen frmMain
    tell_to_end
}

# 23 assets: every third one indoor, outdoor and mobile, the makers numbered backwards.
household searching "with recursive n(i) as (select 1 union all select i + 1 from n where i < 23)
    $(assets "select case i % 3 when 1 then 'Indoor' when 2 then 'Outdoor' else 'Mobile' end,
        case i % 3 when 1 then 'Family Room' when 2 then 'Barn' else 'Car' end, 'Tools',
        case i when 7 then 'Lamp with a shade of pleated silk and brass' else 'Item ' || i end, 1950 + i * 3,
        printf('Maker %02d', 24 - i), 'Model ' || i, 'SN-' || i, '1/2/2020', '\$' || i || '.00', 'No', 'None',
        case i when 7 then 'From the Kestrel auction' else 'None' end, 'New' from n")"
start_at_menu
search_by_word
search_all
search_by_lists
open_by_keys
