# SPDX-License-Identifier: GPL-3.0-or-later
# An asset that is there: found, changed, given a warranty, printed, deleted. It goes on from road_of_one_asset.

found_by_word() {
    step "started again: the asset is found by a word"
    start_program
    click frmMain Search
    see frmSearch search
    text CAMcord
    keys Return
    see frmSearchResults results
    expect "select ID, Type from Print" '1|Camcorder'
    click frmSearchResults 'Update 1'
    see frmAddUpDel asset-opened
}

updated() {
    step "changed, refused, updated"
    click frmAddUpDel 'Purchase Price'
    keys Delete # no amount
    click frmAddUpDel 'Update Asset'
    answer update-refused Return
    text 1500 # the refusal has put the focus there
    enter frmAddUpDel Make 'Northlight & Sons'
    hold Return # which updates once and answers no box
    answer asset-updated Return
    expect "select Make, Amount, Model, [Parts Type] from Inventory" 'Northlight & Sons|$1500.00|V-300 "Pro"|None'
    expect "select AssetValue from Personal_Info" 15000000
}

# hold KEY: until it has repeated itself a few times.
hold() {
    xdotool keydown "$1"
    sleep 1
    xdotool keyup "$1"
    wait_still
}

warranty_by_mouse_and_keys() {
    step "its warranty"
    click frmAddUpDel 'Warranty Information'
    see frmWar warranty-empty
    click frmWar 'Parts Amount'
    texts 250 80x
    pick frmWar 'Labor Month' month-list 2 12
    keys Tab Down Tab Down
    enter frmWar 'Terms & Conditions' 'Carry-in only; keep the receipt.'
    shot warranty-complete
    keys alt+s
    answer warranty-saved Return
    expect "select [Parts Coverage], [Parts Amount], [Labor Month], [Labor Day], [Labor Year], [Warranty Description]
        from Inventory" '80|$250.00|Feb|1|2005|Carry-in only; keep the receipt.'
}

printed_and_deleted() {
    step "printed, then deleted from the results"
    click frmAddUpDel 'Print Asset'
    report_saved AssetReport one-asset "Camcorder" "Northlight & Sons" "\$1,500.00" "Total Pages: 1"
    click frmAddUpDel Cancel
    answer leave-asset Return
    click frmSearchResults 'Update 1'
    click frmAddUpDel 'Delete Asset'
    answer delete-question Return
    answer asset-deleted Return
    wait_screen frmMain
    expect "select count(*) from Inventory" 0
    expect "select AssetValue from Personal_Info" 0
}

found_by_word
updated
warranty_by_mouse_and_keys
printed_and_deleted
close_with_backup
