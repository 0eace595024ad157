# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2016,SC2034,SC2154 # amounts have a "$"; the files of this folder share their variables
# An asset that is there: found, changed, given a warranty, printed, deleted. It goes on from road_of_one_asset.

Camcorder="from Inventory where ID = 1"

found_by_word() {
    step "started again: the asset is found by a word"
    start_program
    wait_screen frmMain
    click frmMain cmdSearch
    wait_screen frmSearch
    shot search
    text CAMcord
    keys Return
    wait_screen frmSearchResults
    shot results
    click frmSearchResults 'txtMore(0)'
    wait_screen frmAddUpDel
    shot asset-opened
}

updated() {
    step "changed, refused, updated"
    click frmAddUpDel txtPPrice
    keys Delete # no amount
    click frmAddUpDel cmdUpdate
    answer update-refused Return
    expect "select AssetValue from Personal_Info" 800000 # the total went before the check
    expect "select Amount $Camcorder" '$1234.56'
    text 1500 # the refusal has put the focus there
    click frmAddUpDel txtMake
    text 'Northlight & Sons'
    keys alt+u
    answer asset-updated Return
    expect "select Make, Amount, Model, [Parts Type] $Camcorder" 'Northlight & Sons|$1500.00|V-300 "Pro"|None'
    expect "select AssetValue from Personal_Info" 15800000
    wait_screen frmAddUpDel
    shot asset-updated
}

warranty_by_mouse_and_keys() {
    step "its warranty"
    click frmAddUpDel cmdWarranty
    wait_screen frmWar
    shot warranty-empty
    click frmWar cmbPDay
    answer month-first Return
    click frmWar txtPAmt
    text 250
    keys Tab
    text 80x
    click frmWar picPDate
    wait_screen frmCalendar
    shot warranty-calendar
    keys Return
    wait_screen frmWar
    pick frmWar cmbLMonth 2 12 month-list
    keys Tab Down Tab Down
    click frmWar txtDescription
    text "Carry-in only; keep the receipt."
    shot warranty-complete
    keys alt+s
    answer warranty-saved Return
    wait_screen frmAddUpDel
    expect "select [Parts Type], [Parts Coverage], [Parts Amount], [Parts Month], [Parts Day], [Parts Year], [Labor Type],
 [Labor Month], [Labor Day], [Labor Year], [Warranty Description] $Camcorder" \
        "None|80|\$250.00|$(date +%b)|$(date +%-d)|$(date +%Y)|None|Feb|1|2005|Carry-in only; keep the receipt."
    warranty_left_unchanged
}

# Amounts of the same form on both sides: nothing is asked.
warranty_left_unchanged() {
    keys alt+w
    wait_screen frmWar
    shot warranty-loaded
    keys alt+c
    wait_screen frmAddUpDel
}

printed() {
    step "printed"
    click frmAddUpDel cmdPrint
    expect "select ID, Type, Make, Amount from Print" '1|Camcorder|Northlight & Sons|$1500.00'
    shown_and_saved one-asset "Camcorder" "Northlight & Sons" "\$1,500.00" "Total Pages: 1"
}

back_to_results() {
    step "back to the results, with a question"
    click frmAddUpDel cmdCancel
    answer leave-asset Return
    wait_screen frmSearchResults
    shot results-after-update
}

deleted() {
    step "deleted"
    click frmSearchResults 'txtMore(0)'
    wait_screen frmAddUpDel
    click frmAddUpDel cmdDelete
    answer delete-question Escape
    expect "select count(*) from Inventory" 2
    keys alt+d
    answer delete-yes Return
    answer asset-deleted Return
    wait_screen frmMain
    expect "select ID, Amount from Inventory" '2|$80.00'
    expect "select AssetValue from Personal_Info" 800000
}

found_by_word
updated
warranty_by_mouse_and_keys
printed
back_to_results
deleted
close_with_backup
