# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2016,SC2034,SC2154 # amounts have a "$"; the files of this folder share their variables
# An asset that is there: found, changed, given a warranty, printed, deleted. It goes on from road_of_one_asset.

Camcorder="from Inventory where ID = 1"

found_by_word() {
    step "started again: the asset is found by a word"
    start_program
    click frmMain cmdSearch
    see frmSearch search
    text CAMcord
    keys Return
    see frmSearchResults results
    click frmSearchResults 'txtMore(0)'
    see frmAddUpDel asset-opened
}

updated() {
    step "changed, refused, updated"
    click frmAddUpDel txtPPrice
    keys Delete # no amount
    click frmAddUpDel cmdUpdate
    answer update-refused Return
    text 1500 # the refusal has put the focus there
    enter frmAddUpDel txtMake 'Northlight & Sons'
    keys alt+u
    answer asset-updated Return
    expect "select Make, Amount, Model, [Parts Type] $Camcorder" 'Northlight & Sons|$1500.00|V-300 "Pro"|None'
    expect "select AssetValue from Personal_Info" 15800000
    see frmAddUpDel asset-updated
}

warranty_by_mouse_and_keys() {
    step "its warranty"
    click frmAddUpDel cmdWarranty
    see frmWar warranty-empty
    click frmWar txtPAmt
    texts 250 80x
    click frmWar picPDate
    see frmCalendar warranty-calendar
    go frmWar Return
    pick frmWar cmbLMonth month-list 2 12
    keys Tab Down Tab Down
    enter frmWar txtDescription "Carry-in only; keep the receipt."
    shot warranty-complete
    keys alt+s
    answer warranty-saved Return
    expect "select [Parts Type], [Parts Coverage], [Parts Amount], [Parts Month], [Parts Day], [Parts Year], [Labor Type],
 [Labor Month], [Labor Day], [Labor Year], [Warranty Description] $Camcorder" \
        "None|80|\$250.00|$(date +%b)|$(date +%-d)|$(date +%Y)|None|Feb|1|2005|Carry-in only; keep the receipt."
    wait_screen frmAddUpDel
}

printed_and_deleted() {
    step "printed, then deleted from the results"
    click frmAddUpDel cmdPrint
    expect "select ID, Type, Make, Amount from Print" '1|Camcorder|Northlight & Sons|$1500.00'
    report_saved AssetReport one-asset "Camcorder" "Northlight & Sons" "\$1,500.00" "Total Pages: 1"
    click frmAddUpDel cmdCancel
    answer leave-asset Return
    see frmSearchResults results-after-update
    click frmSearchResults 'txtMore(0)'
    click frmAddUpDel cmdDelete
    answer delete-question Return
    answer asset-deleted Return
    wait_screen frmMain
    expect "select ID, Amount from Inventory" '2|$80.00'
    expect "select AssetValue from Personal_Info" 800000
}

found_by_word
updated
warranty_by_mouse_and_keys
printed_and_deleted
close_with_backup
