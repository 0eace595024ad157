# SPDX-License-Identifier: GPL-3.0-or-later
# The names of an area: added, changed with the assets that carry them, deleted; and a change that is killed.

Names="select Location, Category, Type from Indoor_Items where Standard = 0"

# at_an_asset HOME COUNT LOCATION: a household with assets of that location, before an asset is added.
at_an_asset() {
    household "$1" "$(assets "$2" "'Indoor', '$3', 'Art', 'Clock', '2001', 'A', 'B', 'C', '1/2/2020', '\$1.00', 'No', 'None',
        'None', 'New'")"
    start_at_menu
    go frmAuto alt+i
    go frmAddUpDel alt+a
}

# editor KEY SCREEN: from the first item of the locations, which leads to the menu. The list opens at the selected item.
editor() {
    unfold frmAddUpDel Location
    go frmEditCmbBoxes Home Return
    shot names-menu
    go "$2" "alt+$1" alt+o
}

# change_name NAME NEW: from the editor's second box.
change_name() {
    editor h frmUpdate
    keys shift+Tab shift+Tab
    texts "$1" "$2"
    shot names-change
    keys alt+h
}

added() {
    step "two locations are added"
    editor a frmAddField
    shot names-add
    local name
    for name in Belfry 'Pantry 2'; do
        text "$name"
        keys alt+a
        answer names-added Return
        keys shift+Tab
    done
    keys alt+c
    answer names-leave-add Return
    expect "$Names" $'Belfry|0|0\nPantry 2|0|0'
}

changed() {
    step "a location is changed with its assets"
    change_name Belfry Vault
    answer names-changed Return
    expect "$Names" $'Pantry 2|0|0\nVault|0|0'
    expect "select Location, count(*) from Inventory group by 1" 'Vault|2'
}

deleted() {
    step "a location that no asset carries is deleted, and the close removes the row that holds no name"
    editor d frmDelField
    text 'Pantry 2'
    shot names-delete
    keys alt+d
    answer names-delete-question Return
    answer names-deleted Return
    wait_screen frmAddUpDel
    expect "$Names" $'0|0|0\nVault|0|0'
    keys alt+m
    answer names-leave-asset Return
    wait_screen frmMain
    leave names-exit
    expect "$Names" 'Vault|0|0'
    same "$(sql "$Backup" "$Names")" 'Vault|0|0' "the backup has other names"
}

some_are_changed() { [ "$(sql "$Database" "select count(*) from Inventory where Location = 'Spire'")" -gt 20 ]; }

killed_in_a_change() {
    step "killed in the midst of a change: whole rows, and the program starts again"
    at_an_asset killed-change 20000 Tower
    change_name Tower Spire
    until_true "the first assets to change" some_are_changed
    kill_program
    [ "$(sql "$Database" "select count(*) from Inventory where Location = 'Tower'")" -gt 0 ] || fail "it was not in the midst"
    expect "select count(*) from Inventory where Location in ('Tower', 'Spire') and Category = 'Art'" 20000
    expect "$Names" 'Spire|0|0' # the name is changed before the assets
    start_at_menu
    tell_to_end
}

at_an_asset names 2 Belfry
added
changed
deleted
killed_in_a_change
