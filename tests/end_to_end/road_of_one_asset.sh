# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2034,SC2154 # the files of this folder share their variables
# The road of one asset, from the first start to the backup.

HouseholdRow="select [Last], [First], [Middle], [Address], [City], [State], [ZIP], [Home Phone1], [Home Phone2],
 [Home Phone3], [Work Phone1], [Work  Phone2], [Work  Phone3], [Cell Phone1], [Cell Phone2], [Cell  Phone3], [EMail],
 [Introduced] from Personal_Info"
Household='Fairbanks|Ann|Q|12 Orchard Lane|Albany|NY|12205-AB|518|555|0101|518|555|0102|518|555|0103|ann@home.example|1'
NoWarranty='None|None|None|None|None|None|None|None|None|None|None|None|None'
LastMonth=$(date -d "$(date +%Y-%m-01) - 1 month" +%-m/1/%Y)

first_start() {
    step "first start: lay the database, splash, introduction"
    lay_database
    expect_mode "$(dirname "$Database")" 700
    expect_mode "$Database" 600
    start_program
    see frmBW_Splash splash
    see frmIntroduction introduction
    go frmKeyboard Return
    shot keyboard
}

personal_information_by_keys() {
    step "personal information, typed"
    go frmGenInfo Return
    shot personal-empty
    type_household
    shot personal-typed
    go frmMain alt+s
    shot main-menu
    expect "$HouseholdRow" "$Household"
}

second_start() {
    step "a second start is refused"
    local before first=$Program
    before=$(dump "$Database")
    start_program
    answer already-running Return
    ends_with 1
    Program=$first
    wait_screen frmMain
    same "$(dump "$Database")" "$before" "the second start has changed the database"
}

personal_information_again() {
    step "personal information: loaded, changed, saved"
    click frmMain cmdPersonal
    see frmGenInfo personal-loaded
    enter frmGenInfo 'txtInfo(4)' Utica
    click frmGenInfo 'cmdBack(0)'
    answer personal-cancel-question alt+n
    click frmGenInfo 'cmdContinue(0)'
    wait_screen frmMain
    Household=${Household/Albany/Utica}
    expect "$HouseholdRow" "$Household"
}

asset_by_mouse() {
    step "an asset, by mouse"
    click frmMain cmdIn
    see frmAuto indoor-menu
    click frmAuto 'cmdAdd(0)'
    see frmAddUpDel asset-empty
    click frmAddUpDel cmdAdd
    answer refused-location Return
    pick frmAddUpDel cmbLoc location-list 10
    pick frmAddUpDel cmbCat category-list 8
    pick frmAddUpDel cmbType item-list 1 8
    enter frmAddUpDel cmbYear 2019
    enter frmAddUpDel txtMake Northlight
    enter frmAddUpDel txtMod 'V-300 "Pro"'
    enter frmAddUpDel txtSerial 'SN 0042/7'
    click frmAddUpDel 'optPurNewUsed(1)'
    click frmAddUpDel picDate
    see frmCalendar calendar
    go frmAddUpDel Prior Home Return
    enter frmAddUpDel txtPPrice 1234.567 # the third decimal is refused
    shot price-typed
    click frmAddUpDel 'optRecOnFile(0)'
    text 'Fire safe, folder 3'
    enter frmAddUpDel txtDescription "With case & 2 batteries; it's Ann's."
    shot asset-complete
    click frmAddUpDel cmdAdd
    answer asset-added Return
    expect "select * from Inventory" "1|Indoor|Family Room|Cameras|Camcorder|2019|Northlight|V-300 \"Pro\"|SN 0042/7\
|$LastMonth|\$1234.56|Yes|Fire safe, folder 3|With case & 2 batteries; it's Ann's.|Used|$NoWarranty"
    see frmAddUpDel asset-cleared
}

asset_by_keys() {
    step "an asset, by keys, with a new name"
    local before
    before=$(sql "$Database" "select count(*) from Indoor_Items")
    keys alt+Down Down Return Tab # the list opens on its first row, which leads to the list editors
    pick frmAddUpDel cmbCat category-list-2 4
    texts '' 'Brass Kestrel' 1931
    go frmCalendar Tab Tab Tab Tab Tab space
    keys Prior Home
    shot calendar-by-keys
    go frmAddUpDel Return
    texts '' 80
    keys alt+a
    answer asset-added-by-keys Return
    expect "select Area, Location, Category, Type, Year, Make, Model, [Serial/ VIN / ID], [Date Purchased], Amount, Receipt,
 [Receipt Location], Description, Purchased from Inventory where ID = 2" \
        "Indoor|Attic|Art|Brass Kestrel|1931|Unknown|Unknown|Unknown|$LastMonth|\$80.00|No|None|None|New"
    expect "select AssetValue from Personal_Info" 13145600
    expect "select Location, Category, Type, Standard from Indoor_Items where rowid > $before" 'Attic|Art|Brass Kestrel|0'
    keys alt+m
    answer asset-leave-question Return
}

close_with_backup() {
    step "exit: question, progress, goodbye, backup"
    local before
    before=$(dump "$Database")
    click frmMain cmdLeave
    answer exit-question Return
    see frmExit goodbye
    ends_with 0
    same "$(dump "$Database")" "$before" "the close has changed the database"
    same "$(dump "$Backup")" "$before" "the backup differs from the database"
    same "$(sql "$Backup" "pragma quick_check")" ok "the backup is damaged"
    expect_mode "$Backup" 600
}

first_start
personal_information_by_keys
second_start
personal_information_again
asset_by_mouse
asset_by_keys
close_with_backup
