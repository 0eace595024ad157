# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2016,SC2154 # the files of this folder share their variables
# From the first start to the second by keys alone, each screen known by the name that is read out: on any display, with
# the program of a build or the installed one.

first_start_by_keys() {
    step "by keyboard alone on $QT_QPA_PLATFORM"
    use_home "${KESTRILL_HOME:-$Place/keyboard-$QT_QPA_PLATFORM}"
    lay_database
    start_program
    wait_heard "Thank You For Choosing Kestrill"
    keys Return
    wait_heard "A keyboard*"
    keys Return
    wait_heard "Personal Information"
    type_household
    keys alt+s
    wait_heard "Welcome To Kestrill Main Menu"
}

asset_by_keys_alone() {
    keys alt+i
    wait_heard "Indoor Asset Management"
    keys alt+a
    wait_heard "Add Indoor Asset To Inventory"
    for _ in location category; do
        keys_seen alt+Down
        keys_seen Down Down # past the row that leads to the list editors
        keys_seen Return
        keys_seen Tab
    done
    text 'Brass Kestrel'
    keys Tab Tab Tab Tab Tab Tab space
    wait_heard "Click A Date Or Press Space Bar To Close"
    keys Left Return
    wait_heard "Add Indoor Asset To Inventory"
    keys Tab
    text 80
    shot "asset-on-$QT_QPA_PLATFORM"
    keys alt+a
    wait_heard "Kestrill by Brindlewick Software"
    keys Return
    expect "select Type, Amount from Inventory" 'Brass Kestrel|$80.00'
    wait_heard "Add Indoor Asset To Inventory"
    keys alt+m
    wait_heard "Kestrill by Brindlewick Software"
    keys Return
    wait_heard "Welcome To Kestrill Main Menu"
}

close_by_keys() {
    keys alt+x
    wait_heard "Kestrill by Brindlewick Software"
    keys Return
    ends_with 0
    same "$(dump "$Backup")" "$(dump "$Database")" "the backup differs from the database"
    expect_mode "$(dirname "$Database")" 700
    expect_mode "$Database" 600
}

second_start_by_keys() {
    start_program
    wait_heard "Welcome To Kestrill Main Menu"
    expect "select City from Personal_Info" Albany
    tell_to_end
}

first_start_by_keys
asset_by_keys_alone
close_by_keys
second_start_by_keys
