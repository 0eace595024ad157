# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2016,SC2034,SC2154 # amounts have a "$"; the files of this folder share their variables
# The names of an area: added, changed with the assets that carry them, deleted; and a change that is killed.

Names="select Location, Category, Type from Indoor_Items where Standard = 0"
Carried="select Location, Category, count(*) from Inventory group by 1, 2"

# at_an_asset HOME COUNT LOCATION CATEGORY: a household with assets of these names, before an asset is added.
at_an_asset() {
    household "$1" "with recursive n(i) as (select 1 union all select i + 1 from n where i < $2)
        $(assets "select 'Indoor', '$3', '$4', 'Clock', '2001', 'A', 'B', 'C', '1/2/2020', '\$1.00', 'No', 'None', 'None',
            'New' from n")"
    start_at_menu
    go frmAuto alt+i
    go frmAddUpDel alt+a
}

# by_keys KEY SCREEN: from the first item of the locations, which leads to the menu, to an editor. The list opens at the
# selected item.
by_keys() {
    unfold frmAddUpDel cmbLoc
    go frmEditCmbBoxes Home Return
    go "$2" "alt+$1" alt+o
}

# by_mouse OPTION: to an editor of the categories.
by_mouse() {
    unfold frmAddUpDel cmbCat
    go frmEditCmbBoxes Home Return
    click frmEditCmbBoxes "optEdit($1)"
    click frmEditCmbBoxes cmdUpdate
}

# change_by_keys NAME NEW: from the editor's second box.
change_by_keys() {
    by_keys h frmUpdate
    keys shift+Tab shift+Tab
    texts "$1" "$2"
    shot names-change
    keys alt+h
}

added() {
    step "two locations are added, by keys; a category, by mouse, and refused when it is added again"
    unfold frmAddUpDel cmbLoc
    go frmEditCmbBoxes Home Return
    shot names-menu
    go frmAddField alt+a alt+o
    shot names-add
    text 'Belfry'
    keys alt+a
    answer names-added Return
    keys shift+Tab
    text 'Pantry 2'
    keys alt+a
    answer names-added-again Return
    keys alt+c
    answer names-leave-add Return
    expect "$Names" $'Belfry|0|0\nPantry 2|0|0'
    by_mouse 0
    enter frmAddField txtAdd Trains
    click frmAddField cmdUpdate
    answer names-category-added Return
    click frmAddField cmdUpdate
    answer names-refused Return
    shot names-refused-colour
    click frmAddField cmdCancel
    answer names-leave-category Return
}

changed() {
    step "the location is changed by keys, the category by mouse"
    change_by_keys Belfry Vault
    answer names-changed Return
    see frmAddUpDel names-changed-asset
    expect "$Names" $'Pantry 2|0|0\n0|Trains|0\nVault|0|0'
    by_mouse 1
    enter frmUpdate cmbCat Trains
    enter frmUpdate txtNew Railway
    click frmUpdate cmdUpdate
    answer names-category-changed Return
    expect "$Carried" 'Vault|Railway|2'
}

deleted() {
    step "a location that no asset carries is deleted, and the close removes the row that holds no name"
    by_keys d frmDelField
    text 'Pantry 2'
    shot names-delete
    keys alt+d
    answer names-delete-question Return
    answer names-deleted Return
    wait_screen frmAddUpDel
    expect "$Names" $'0|0|0\nVault|0|0\n0|Railway|0'
    keys alt+m
    answer names-leave-asset Return
    wait_screen frmMain
    leave names-exit
    expect "$Names" $'Vault|0|0\n0|Railway|0'
    same "$(sql "$Backup" "$Names")" $'Vault|0|0\n0|Railway|0' "the backup has other names"
}

some_are_changed() {
    Changed=$(sql "$Database" "select count(*) from Inventory where Location = 'Spire'") && [ "$Changed" -gt 20 ]
}

killed_in_a_change() {
    step "killed in the midst of a change: whole rows, and the program starts again"
    at_an_asset killed-change 20000 Tower Bells
    change_by_keys Tower Spire
    until_true "the first assets to change" some_are_changed
    kill_program
    [ "$(sql "$Database" "select count(*) from Inventory where Location = 'Tower'")" -gt 0 ] || fail "it was not in the midst"
    expect "select count(*) from Inventory where Location in ('Tower', 'Spire') and Category = 'Bells'" 20000
    expect "$Names" 'Spire|0|0' # the name is changed before the assets
    start_at_menu
    tell_to_end
}

at_an_asset names 2 Belfry Trains
added
changed
deleted
killed_in_a_change
