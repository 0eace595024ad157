# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2154 # the files of this folder share their variables
# The screens as the help shows them, each filled in as a householder would have it, under the name of its class.
# shellcheck source=tests/end_to_end/household.sh
. "$Here/household.sh"

# portrait NAME [SCREEN]: the window in front with its frame, once it stands still.
portrait() {
    local left top right bottom frame now last=
    wait_screen "${2:-$1}"
    xdotool mousemove 1 1 # no tool tip, and no button under the pointer
    read -r left top right bottom <<<"$(rectangle_of "$(active_window)")"
    frame=$(xprop -id "$(active_window)" _NET_FRAME_EXTENTS | sed 's/.*= //; s/,//g')
    read -r -a frame <<<"$frame"
    left=$((left - frame[0])) right=$((right + frame[1])) top=$((top - frame[2])) bottom=$((bottom + frame[3]))
    for _ in 1 2 3 4 5 6 7 8; do
        import -window root -crop "$((right - left))x$((bottom - top))+$left+$top" +repage "$Pictures/$1.png"
        now=$(identify -format '%#' "$Pictures/$1.png")
        [ "$now" != "$last" ] || break
        last=$now
    done
}

at_menu() {
    start_program
    wait_screen frmMain
}

first_run() {
    step "the first run"
    use_home "$Place/first"
    "$Here/../../scripts/lay-database" "$Build/data/KTL.db"
    start_program
    portrait frmIntroduction
    keys Return
    portrait frmKeyboard
    kill -TERM "$Program"
    ends_with 0
}

household_screens() {
    step "the menu and the household"
    portrait frmMain
    keys alt+r
    portrait frmGenInfo
    click frmGenInfo cmdInsInfo
    portrait frmInsInfo
    keys alt+F4
    account_screens
    click frmGenInfo 'cmdBack(0)'
    until_true "the menu" left_to_menu
    keys alt+v
    portrait frmTotals
    keys Return
    wait_screen frmMain
}

left_to_menu() {
    if is_in_front MsgBox; then
        keys Return
    fi
    is_in_front frmMain
}

account_screens() {
    click frmGenInfo cmdBank
    portrait frmEditBankBoxes
    keys alt+a Return
    wait_screen frmBank
    # The state leads on to the phone, the phone to the type by itself.
    text $'Harbor Savings Bank\t1 Main Street\tAlbany\tny5185550140\tA-100'
    portrait frmBank
    click frmBank cmdBack
    until_true "personal information" left_to_personal
}

left_to_personal() {
    if is_in_front MsgBox; then
        keys Return
    elif is_in_front frmEditBankBoxes; then
        keys alt+c
    fi
    is_in_front frmGenInfo
}

reports() {
    step "the print menu and a report"
    keys alt+p
    portrait frmPrint
    keys alt+i
    wait_screen AssetReport
    keys ctrl+0
    portrait preview AssetReport
    keys Escape
    wait_screen frmPrint
    keys alt+c
    wait_screen frmMain
}

search_and_asset() {
    step "the search, an asset and its warranty"
    keys alt+s
    wait_screen frmSearch
    text sofa
    portrait frmSearch
    keys ctrl+a BackSpace Return
    wait_screen MsgBox
    keys Return
    portrait frmSearchResults
    click frmSearchResults 'txtMore(0)'
    portrait frmAddUpDel
    click frmAddUpDel picDate
    portrait frmCalendar
    keys Return
    wait_screen frmAddUpDel
    click frmAddUpDel cmdWarranty
    portrait frmWar
    keys alt+c
    wait_screen frmAddUpDel
    kill -TERM "$Program"
    ends_with 0
}

name_lists() {
    step "the area menu and the editors of the names"
    at_menu
    keys alt+i
    portrait frmAuto
    click frmAuto 'cmdAdd(0)'
    list_menu
    portrait frmEditCmbBoxes
    editor a frmAddField
    text 'Sun Porch'
    portrait frmAddField
    leave_editor
    list_menu
    editor h frmUpdate
    keys shift+Tab shift+Tab
    text Attic
    keys Tab
    text 'Guest Room'
    portrait frmUpdate
    leave_editor
    list_menu
    editor d frmDelField
    text Garret
    portrait frmDelField
    kill -TERM "$Program"
    ends_with 0
}

list_menu() {
    find frmAddUpDel cmbLoc
    click_at $((X + W - H / 2)) $((Y + H / 2))
    until_true "the list of locations" open_list
    keys Home Return
    wait_screen frmEditCmbBoxes
}

# editor KEY SCREEN
editor() {
    keys "alt+$1" alt+o
    wait_screen "$2"
}

leave_editor() {
    keys alt+c
    wait_screen MsgBox
    keys Return
    wait_screen frmAddUpDel
}

# Two closes, so that there is an earlier backup, too.
backups() {
    step "the backups"
    cmake --install "$Build" --prefix "$Place/prefix" >/dev/null
    for _ in 1 2; do
        at_menu
        keys alt+x
        wait_screen MsgBox
        keys Return
        ends_with 0
        sqlcipher_with_key "$Database" "delete from Inventory where Type = 'Sofa'"
    done
    "$Place/prefix/bin/kestrill-restore" >>"$Log" 2>&1 &
    Program=$!
    portrait restore frmRestore
    kill -TERM "$Program"
    wait "$Program" || true
}

# The closing screen is gone in a moment: a large database keeps it, and the program is held while it is looked at.
closing() {
    step "the closing"
    sqlcipher_with_key "$Database" "with recursive n(i) as (select 1 union all select i + 1 from n where i < 20000)
        insert into Indoor_Items (Location, Category, Type, Standard) select 'Attic', 'Art', 'Clock ' || i, 0 from n"
    at_menu
    keys alt+x
    portrait message MsgBox
    keys Return
    until_true "the closing screen" is_in_front frmProgress
    kill -STOP "$Program"
    portrait frmProgress
    kill -CONT "$Program"
    ends_with 0
}

first_run
household_with_assets pictures
sqlcipher_with_key "$Database" "update Inventory set [Parts Type] = 'Manufacturer', [Parts Coverage] = '80',
    [Parts Amount] = '\$250.00', [Parts Month] = 'Oct', [Parts Day] = '23', [Parts Year] = '2027',
    [Warranty Description] = 'Carry-in only; keep the receipt.' where Type = 'Camcorder';
    update Personal_Info set [Policy Coverage] = '\$50,000.00'"
at_menu
household_screens
reports
search_and_asset
name_lists
backups
closing
