# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2034,SC2154 # the files of this folder share their variables
# The names of an area: added, changed with the assets that carry them, deleted; and a change that is killed.

Names="select Location, Category, Type from Indoor_Items where Standard = 0"
Carried="select Location, Category, count(*) from Inventory group by 1, 2"

a_household() {
    use_home "$Place/$1"
    "$Here/../../scripts/lay-database" "$Build/data/KTL.db"
    local others
    mapfile -t others < <(sqlcipher_with_key "$Database" "pragma table_info(Inventory)" | awk -F'|' '
        $2 !~ /^(ID|Area|Location|Category)$/ { print $2 }')
    sqlcipher_with_key "$Database" "update Personal_Info set [Introduced] = '1';
        with recursive n(i) as (select 1 union all select i + 1 from n where i < $2)
        insert into Inventory (Area, Location, Category$(printf ', [%s]' "${others[@]}"))
        select 'Indoor', '$3', '$4'$(printf ", '1'%.0s" "${others[@]}") from n"
    start_program
    wait_screen frmMain
    click frmMain cmdIn
    click frmAuto 'cmdAdd(0)'
    wait_screen frmAddUpDel
}

# marker BOX: picks the first item of its list, which leads to the menu. The list opens at the selected item.
marker() {
    find frmAddUpDel "$1"
    click_at $((X + W - H / 2)) $((Y + H / 2))
    until_true "the list of $1" open_list
    shot "names-list-$1"
    keys Home Return
    wait_screen frmEditCmbBoxes
}

# option KEY EDITOR: an option of the menu, by the keyboard.
option() {
    keys "alt+$1" alt+o
    wait_screen "$2"
}

added_by_keys() {
    step "two locations are added, by keys"
    marker cmbLoc
    shot names-menu
    option a frmAddField
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
    wait_screen frmAddUpDel
    expect "$Names" $'Belfry|0|0\nPantry 2|0|0'
}

added_by_mouse() {
    step "a category is added, by mouse; added again, it is refused"
    marker cmbCat
    click frmEditCmbBoxes 'optEdit(0)'
    click frmEditCmbBoxes cmdUpdate
    click frmAddField txtAdd
    text Trains
    click frmAddField cmdUpdate
    answer names-category-added Return
    click frmAddField cmdUpdate
    answer names-refused Return
    shot names-refused-colour
    click frmAddField cmdCancel
    answer names-leave-category Return
    wait_screen frmAddUpDel
}

changed() {
    step "the location is changed by keys, the category by mouse"
    marker cmbLoc
    option h frmUpdate
    keys shift+Tab shift+Tab
    text 'Belfry'
    keys Tab
    text Vault
    shot names-change
    keys alt+h
    answer names-changed Return
    wait_screen frmAddUpDel
    shot names-changed-asset
    expect "$Names" $'Pantry 2|0|0\n0|Trains|0\nVault|0|0'
    expect "$Carried" 'Vault|Trains|2'
    marker cmbCat
    click frmEditCmbBoxes 'optEdit(1)'
    click frmEditCmbBoxes cmdUpdate
    click frmUpdate cmbCat
    text Trains
    click frmUpdate txtNew
    text Railway
    click frmUpdate cmdUpdate
    answer names-category-changed Return
    expect "$Carried" 'Vault|Railway|2'
}

deleted() {
    step "a location that no asset carries is deleted by keys; a category in use is refused"
    marker cmbLoc
    option d frmDelField
    text 'Pantry 2'
    shot names-delete
    keys alt+d
    answer names-delete-question Return
    answer names-deleted Return
    wait_screen frmAddUpDel
    marker cmbCat
    click frmEditCmbBoxes 'optEdit(2)'
    click frmEditCmbBoxes cmdUpdate
    click frmDelField cmbCat
    text Railway
    click frmDelField cmdUpdate
    answer names-delete-category Return
    answer names-in-use Return
    click frmDelField cmdCancel
    answer names-leave-delete Return
    wait_screen frmAddUpDel
    expect "$Names" $'0|0|0\nVault|0|0\n0|Railway|0'
}

closed() {
    step "the close removes the row that holds no name"
    keys alt+m
    answer names-leave-asset Return
    wait_screen frmMain
    keys alt+x
    answer names-exit Return
    ends_with 0
    expect "$Names" $'Vault|0|0\n0|Railway|0'
    same "$(sql "$Backup" "$Names")" $'Vault|0|0\n0|Railway|0' "the backup has other names"
}

some_are_changed() {
    Changed=$(sql "$Database" "select count(*) from Inventory where Location = 'Spire'") && [ "$Changed" -gt 20 ]
}

killed_in_a_change() {
    step "killed in the midst of a change: whole rows, and the program starts again"
    a_household killed-change 20000 Tower Bells
    marker cmbLoc
    option h frmUpdate
    keys shift+Tab shift+Tab
    text Tower
    keys Tab
    text Spire
    keys alt+h
    until_true "the first assets to change" some_are_changed
    shot names-changing
    kill -9 "$Program"
    ends_with 137
    same "$(sql "$Database" "pragma integrity_check")" ok "the database is damaged"
    [ "$(sql "$Database" "select count(*) from Inventory where Location = 'Tower'")" -gt 0 ] || fail "it was not in the midst"
    expect "select count(*) from Inventory where Location in ('Tower', 'Spire') and Category = 'Bells'" 20000
    expect "$Names" 'Spire|0|0' # the name is changed before the assets
    start_program
    wait_screen frmMain
    kill -TERM "$Program"
    ends_with 0
}

a_household names 2 'Belfry' Trains
added_by_keys
added_by_mouse
changed
deleted
closed
killed_in_a_change
