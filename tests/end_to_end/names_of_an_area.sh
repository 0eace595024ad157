# SPDX-License-Identifier: GPL-3.0-or-later
# The locations of an area: added by keys, changed by the mouse with the assets that carry them, deleted.

Names="select Location from Indoor_Items where Standard = 0"

# editor SCREEN OPTION: from the first item of the list, which leads to the menu. The list opens at the selected item.
editor() {
    unfold frmAddUpDel Location
    go frmEditCmbBoxes Home Return
    click frmEditCmbBoxes "$2"
    shot names-menu
    keys alt+o
    see "$1" "names-${2,,}"
}

step "two names are added"
household names "$(assets 2 "'Indoor', 'Belfry', 'Belfry', 'Clock', '2001', 'A', 'B', 'C', '1/2/2020', '\$1.00', 'No', 'None',
    'None', 'New'")"
start_at_menu
go frmAuto alt+i
go frmAddUpDel alt+a
editor frmAddField Add
for name in Belfry 'Pantry 2'; do
    text "$name"
    keys alt+a
    answer names-added Return
    keys shift+Tab
done
keys alt+c
answer names-leave-add Return
expect "$Names" $'Belfry\nPantry 2'

step "a name is changed with its assets"
editor frmUpdate Change
keys shift+Tab shift+Tab
texts Belfry Vault
click frmUpdate Change
answer names-changed Return
expect "$Names" $'Pantry 2\nVault'
expect "select Location, count(*) from Inventory group by 1" 'Vault|2'

step "a name that no asset carries is deleted, and the close removes the row that holds no name"
editor frmDelField Delete
text 'Pantry 2'
click frmDelField Delete
answer names-delete-question Return
answer names-deleted Return
wait_screen frmAddUpDel
expect "$Names" $'0\nVault'
keys alt+m
answer names-leave-asset Return
wait_screen frmMain
leave names-exit
expect "$Names" Vault
