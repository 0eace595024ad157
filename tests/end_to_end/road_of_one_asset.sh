# SPDX-License-Identifier: GPL-3.0-or-later
# The road of one asset, from the first start to the backup.

Household="select [First], [Middle], [Last], [Address], [City], [State], [ZIP], [Home Phone3], [Work  Phone3],
    [Cell  Phone3], [EMail], [Introduced] from Personal_Info"
LastMonth=$(date -d "$(date +%Y-%m-01) - 1 month" +%-m/1/%Y)

first_start() {
    step "first start: lay the database, splash, introduction, the personal information typed"
    lay_database
    expect_mode "$(dirname "$Database")" 700
    expect_mode "$Database" 600
    start_program
    see frmBW_Splash splash
    see frmIntroduction introduction
    go frmKeyboard Return
    shot keyboard
    go frmGenInfo Return
    type_household
    shot personal-typed
    go frmMain alt+s
    expect "$Household" 'Ann|Q|Fairbanks|12 Orchard Lane|Albany|NY|12205-AB|0101|0102|0103|ann@home.example|1'
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

asset_by_mouse() {
    step "an asset, by mouse"
    see frmMain main-menu
    click frmMain Indoor
    see frmAuto indoor-menu
    click frmAuto Add
    see frmAddUpDel asset-empty
    click frmAddUpDel 'Add Asset'
    answer refused-location Return
    pick frmAddUpDel Location location-list 10
    pick frmAddUpDel Category category-list 8
    pick frmAddUpDel Item item-list 1 8
    enter frmAddUpDel Year 2019
    enter frmAddUpDel Make Northlight
    enter frmAddUpDel Model 'V-300 "Pro"'
    enter frmAddUpDel Serial 'SN 0042/7'
    click frmAddUpDel 'Purchased: Used'
    click frmAddUpDel 'Purchase Date'
    see frmCalendar calendar
    xprop -id "$(active_window)" WM_TRANSIENT_FOR | grep -q 'window id' || fail "the calendar belongs to no screen"
    go frmAddUpDel Prior Home Return
    enter frmAddUpDel 'Purchase Price' 1234.567 # the third decimal is refused
    click frmAddUpDel 'Receipt On File: Yes'
    text 'Fire safe, folder 3'
    enter frmAddUpDel Description "With case & 2 batteries; it's Ann's."
    shot asset-complete
    click frmAddUpDel 'Add Asset'
    answer asset-added Return
    expect "select * from Inventory" "1|Indoor|Family Room|Cameras|Camcorder|2019|Northlight|V-300 \"Pro\"|SN 0042/7\
|$LastMonth|\$1234.56|Yes|Fire safe, folder 3|With case & 2 batteries; it's Ann's.|Used$(printf '|None%.0s' {1..13})"
    see frmAddUpDel asset-cleared
    keys alt+m
    answer asset-leave-question Return
}

close_with_backup() {
    step "exit: question, progress, goodbye, backup"
    local before
    before=$(dump "$Database")
    click frmMain Exit
    answer exit-question Return
    see frmExit goodbye
    ends_with 0
    same "$(dump "$Database")" "$before" "the close has changed the database"
    same "$(dump "$Backup")" "$before" "the backup differs from the database"
    same "$(sql "$Backup" "pragma quick_check")" ok "the backup is damaged"
    expect_mode "$Backup" 600
}

first_start
second_start
asset_by_mouse
close_with_backup
