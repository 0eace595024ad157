# SPDX-License-Identifier: GPL-3.0-or-later
# The names of an area, locations by keys and categories by the mouse: added, changed with the assets that carry them,
# deleted.

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

for Kind in Location Category; do
    step "$Kind: two names are added"
    Names="select $Kind from Indoor_Items where Standard = 0"
    household "names $Kind" "$(assets 2 "'Indoor', 'Belfry', 'Belfry', 'Clock', '2001', 'A', 'B', 'C', '1/2/2020', '\$1.00', 'No',
        'None', 'None', 'New'")"
    start_at_menu
    go frmAuto alt+i
    go frmAddUpDel alt+a
    editor frmAddField Add alt+a
    for name in Belfry 'Pantry 2'; do
        text "$name"
        by_hand frmAddField Add alt+a
        answer names-added Return
        keys shift+Tab
    done
    by_hand frmAddField Cancel alt+c
    answer names-leave-add Return
    expect "$Names" $'Belfry\nPantry 2'

    step "$Kind: a name is changed with its assets"
    editor frmUpdate Change alt+h
    keys shift+Tab shift+Tab
    texts Belfry Vault
    by_hand frmUpdate Change alt+h
    answer names-changed Return
    expect "$Names" $'Pantry 2\nVault'
    expect "select $Kind, count(*) from Inventory group by 1" 'Vault|2'

    step "$Kind: a name that no asset carries is deleted, and the close removes the row that holds no name"
    editor frmDelField Delete alt+d
    text 'Pantry 2'
    by_hand frmDelField Delete alt+d
    answer names-delete-question Return
    answer names-deleted Return
    wait_screen frmAddUpDel
    expect "$Names" $'0\nVault'
    keys alt+m
    answer names-leave-asset Return
    wait_screen frmMain
    leave names-exit
    expect "$Names" Vault
    same "$(sql "$Backup" "$Names")" Vault "the backup has other names"
done
