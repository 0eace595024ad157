# SPDX-License-Identifier: GPL-3.0-or-later
# The names of an area, locations by keys and categories by the mouse: added, changed with the assets that carry them,
# deleted; and a change that is killed.

# at_an_asset KIND COUNT NAME: a household with assets of that location and category, before an asset is added.
at_an_asset() {
    Kind=$1
    Names="select $Kind from Indoor_Items where Standard = 0"
    household "$Kind $3" "$(assets "$2" "'Indoor', '$3', '$3', 'Clock', '2001', 'A', 'B', 'C', '1/2/2020', '\$1.00', 'No',
        'None', 'None', 'New'")"
    start_at_menu
    go frmAuto alt+i
    go frmAddUpDel alt+a
}

# by_hand SCREEN CONTROL KEY
by_hand() { if [ "$Kind" = Location ]; then keys "$3"; else click "$1" "$2"; fi; }

# editor SCREEN OPTION KEY: from the first item of the list, which leads to the menu. The list opens at the selected item.
editor() {
    unfold frmAddUpDel "$Kind"
    go frmEditCmbBoxes Home Return
    by_hand frmEditCmbBoxes "$2" "$3"
    shot names-menu
    by_hand frmEditCmbBoxes Continue alt+o
    see "$1" "names-${2,,}"
}

# change_name NAME NEW: from the editor's second box.
change_name() {
    editor frmUpdate Change alt+h
    keys shift+Tab shift+Tab
    texts "$1" "$2"
    by_hand frmUpdate Change alt+h
}

some_are_changed() { [ "$(sql "$Database" "select count(*) from Inventory where Location = 'Spire'")" -gt 20 ]; }

for kind in Location Category; do
    at_an_asset "$kind" 2 Belfry
    step "$kind: two names are added"
    editor frmAddField Add alt+a
    for name in Belfry 'Pantry 2'; do
        text "$name"
        by_hand frmAddField Add alt+a
        answer names-added Return
        keys shift+Tab
    done
    by_hand frmAddField Cancel alt+c
    answer names-leave-add Return
    expect "$Names" $'Belfry
Pantry 2'

    step "$kind: a name is changed with its assets"
    change_name Belfry Vault
    answer names-changed Return
    expect "$Names" $'Pantry 2
Vault'
    expect "select $kind, count(*) from Inventory group by 1" 'Vault|2'

    step "$kind: a name that no asset carries is deleted, and the close removes the row that holds no name"
    editor frmDelField Delete alt+d
    text 'Pantry 2'
    by_hand frmDelField Delete alt+d
    answer names-delete-question Return
    answer names-deleted Return
    wait_screen frmAddUpDel
    expect "$Names" $'0
Vault'
    keys alt+m
    answer names-leave-asset Return
    wait_screen frmMain
    leave names-exit
    expect "$Names" Vault
    same "$(sql "$Backup" "$Names")" Vault "the backup has other names"
done

step "killed in the midst of a change: whole rows, and the program starts again"
at_an_asset Location 20000 Tower
change_name Tower Spire
until_true "the first assets to change" some_are_changed
kill_program
[ "$(sql "$Database" "select count(*) from Inventory where Location = 'Tower'")" -gt 0 ] || fail "it was not in the midst"
expect "select count(*) from Inventory where Location in ('Tower', 'Spire') and Category = 'Tower'" 20000
expect "$Names" Spire # the name is changed before the assets
start_at_menu
tell_to_end
