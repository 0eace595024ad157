# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2154 # the files of this folder share their variables
# The screens as the help shows them, each filled in as a householder would have it, under the name of its class.

LongDescription="Rolled front, three keys, of which one is worn. The upper left drawer has a false back behind which \
lies a second lock. Restored in 2004; the bill of the restorer is kept with the receipt. The veneer of the right door \
is chipped near the hinge, as the photograph in the fire safe shows."

# household_with_assets NAME [STATEMENTS]: Ann Fairbanks and eight things of hers.
household_with_assets() {
    household "$1" "update Personal_Info set [First] = 'Ann', [Middle] = 'Q', [Last] = 'Fairbanks',
            [Address] = '12 Orchard Lane', [City] = 'Albany', [State] = 'NY', [ZIP] = '12205-AB',
            [Home Phone1] = '518', [Home Phone2] = '555', [Home Phone3] = '0101', [EMail] = 'ann@home.example',
            [Policy Company] = 'Tidewater Mutual', [Policy Number] = 'TM-4711-08', [Policy Expiration] = '12/31/2027',
            [AssetValue] = 78342900;
        insert into Inventory select null, *$(printf ", 'None'%.0s" {1..13}) from (values
        ('Indoor', 'Family Room', 'Cameras', 'Camcorder', '2019', 'Northlight', 'V-300 \"Pro\"', 'SN 0042/7',
            '7/4/2019', '\$1,234.56', 'Yes', 'Fire safe, folder 3', 'With case and two batteries.', 'Used'),
        ('Indoor', 'Attic', 'Art', 'Brass Kestrel', '1931', 'Unknown', 'Unknown', 'Unknown', '10/23/2026', '\$80.00',
            'No', 'None', 'None', 'New'),
        ('Indoor', 'Library', 'Antiques', 'Secretary Desk With Hidden Drawer', '1880', 'Hollis & Daughter',
            'Walnut, rolled front', 'Branded 114 inside the left drawer', '3/14/2001', '\$4,850.00', 'Yes',
            'Desk, second drawer', '$LongDescription', 'Used'),
        ('Indoor', 'Kitchen', 'Appliances', 'Dishwasher', '2022', 'Brightwater', 'DW-60', 'BW60-2218-7741',
            '5/2/2022', '\$749.00', 'Yes', 'File cabinet', 'None', 'New'),
        ('Outdoor', 'Shed', 'Garden', 'Lawn Mower', '2020', 'Greenfield', 'LM 48', 'None', '4/11/2020', '\$389.50',
            'Yes', 'File cabinet', 'None', 'New'),
        ('Indoor', 'Bedroom', 'Jewelry', 'Pearl Necklace', '1962', 'Unknown', 'Unknown', 'Unknown', '6/1/1962',
            '\$530.00', 'No', 'None', 'Inherited; appraised in 2019.', 'Used'),
        ('Indoor', 'Study', 'Computers', 'Notebook', '2024', 'Meridian', 'M15', '7QX-22810', '2/9/2024',
            '\$1,379.00', 'Yes', 'File cabinet', 'None', 'New'),
        ('Indoor', 'Living Room', 'Furniture', 'Sofa', '2018', 'Hearth & Home', 'Three seats', 'Unknown',
            '9/15/2018', '\$1,210.00', 'Yes', 'File cabinet', 'Blue; the left arm is worn.', 'New')); ${2:-}"
}

# portrait NAME [SCREEN]: the window in front with its frame, once it stands still.
portrait() {
    local left top right bottom frame
    wait_screen "${2:-$1}"
    xdotool mousemove 9999 9999 # the corner that is free: no tool tip, no button under the pointer
    read -r left top right bottom <<<"$(rectangle_of "$(active_window)")"
    read -r -a frame <<<"$(xprop -id "$(active_window)" _NET_FRAME_EXTENTS | sed 's/.*= //; s/,//g')"
    left=$((left - frame[0])) right=$((right + frame[1])) top=$((top - frame[2])) bottom=$((bottom + frame[3]))
    wait_still
    picture "$1" "$((right - left))x$((bottom - top))+$left+$top"
}

# What is read out has its places in the program's own, larger dots.
is_placed() {
    "$Here/screen_reader.py" place "$1" 2>/dev/null | awk '{ print 2 * $1, 2 * $2, 2 * $3, 2 * $4 }' >"$Place/place"
    [ -s "$Place/place" ]
}

# Title bars, which the window manager paints, in twice their size, too.
large_titles() {
    local before
    before=$(xprop -root _NET_SUPPORTING_WM_CHECK)
    sed 's|<desktops>|<theme><font place="ActiveWindow"><name>Sans</name><size>16</size></font></theme>&|' \
        "$Here/openbox.xml" >"$Place/openbox.xml"
    openbox --replace --config-file "$Place/openbox.xml" 2>>"$Place/openbox.log" &
    until_true "the window manager with large titles" is_another_manager "$before"
}

is_another_manager() { manager_is_there && [ "$(xprop -root _NET_SUPPORTING_WM_CHECK)" != "$1" ]; }

first_run() {
    step "the first run"
    use_home "$Place/first"
    lay_database
    start_program
    portrait frmIntroduction
    keys Return
    portrait frmKeyboard
    tell_to_end
}

household_screens() {
    step "the menu and the household"
    portrait frmMain
    keys alt+r
    portrait frmGenInfo
    click frmGenInfo 'Insurance Information'
    portrait frmInsInfo
    keys alt+F4
    account_screens
    click frmGenInfo Cancel
    until_true "the menu" left_to_menu
    keys alt+v
    portrait frmTotals
    go frmMain Return
}

left_to_menu() {
    if is_in_front MsgBox; then
        keys Return
    fi
    is_in_front frmMain
}

account_screens() {
    click frmGenInfo 'Bank Account Information'
    portrait frmEditBankBoxes
    go frmBank alt+a Return
    # The state leads on to the phone, the phone to the type by itself.
    text $'Harbor Savings Bank\t1 Main Street\tAlbany\tny5185550140\tA-100'
    portrait frmBank
    click frmBank Cancel
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
    go AssetReport alt+i
    unfold AssetReport Paper
    go AssetReport Home Return # Letter, whatever the system's own is
    keys ctrl+0
    portrait preview AssetReport
    go frmPrint Escape
    go frmMain alt+c
}

search_and_asset() {
    step "the search, an asset and its warranty"
    go frmSearch alt+s
    text sofa
    portrait frmSearch
    go MsgBox ctrl+a BackSpace Return
    keys Return
    portrait frmSearchResults
    click frmSearchResults 'Update 1'
    portrait frmAddUpDel
    click frmAddUpDel 'Purchase Date'
    portrait frmCalendar
    go frmAddUpDel Return
    click frmAddUpDel 'Warranty Information'
    portrait frmWar
    go frmAddUpDel alt+c
    tell_to_end
}

name_lists() {
    step "the area menu and the editors of the names"
    start_at_menu
    keys alt+i
    portrait frmAuto
    click frmAuto Add
    list_menu
    portrait frmEditCmbBoxes
    editor a frmAddField
    text 'Sun Porch'
    portrait frmAddField
    leave_editor
    list_menu
    editor h frmUpdate
    keys shift+Tab shift+Tab
    texts Attic 'Guest Room'
    portrait frmUpdate
    leave_editor
    list_menu
    editor d frmDelField
    text Garret
    portrait frmDelField
    tell_to_end
}

list_menu() {
    unfold frmAddUpDel Location
    go frmEditCmbBoxes Home Return
}

# editor KEY SCREEN
editor() { go "$2" "alt+$1" alt+o; }

leave_editor() {
    go MsgBox alt+c
    go frmAddUpDel Return
}

# Two closes, so that there is an earlier backup, too.
backups() {
    step "the backups"
    cmake --install "$Build" --prefix "$Place/prefix" >/dev/null
    for _ in 1 2; do
        start_at_menu
        go MsgBox alt+x
        keys Return
        ends_with 0
        change "delete from Inventory where Type = 'Sofa'"
    done
    start "$Place/prefix/bin/kestrill-restore"
    portrait restore frmRestore
    kill -TERM "$Program"
    wait "$Program" || true
}

# A list of a householder's own: colors have no field, and one price is missing.
import() {
    step "the import"
    cat >"$HOME/My things.csv" <<'END'
Thing,Room,Kind,Brand,Bought,Paid,Color
Coffee Machine,Kitchen,Appliances,Brightwater,11/25/2022,$249.00,black
Armchair,Living Room,Furniture,Hearth & Home,3/14/2015,"$1,180.00",green
Piano,Living Room,Musical Instruments,Hollis & Daughter,6/30/1998,"$6,400.00",walnut
Wall Clock,Hall,Clocks,,5/17/2004,,brass
Television,Family Room,Electronics,Northlight,12/2/2023,$899.00,
END
    start "$Build/bin/kestrill-import"
    until_true "the question for the file" has_title "Choose The List To Import"
    text "$HOME/My things.csv"
    keys Return
    wait_screen frmImport
    keys alt+a
    text indoor
    keys alt+h
    portrait import frmImport
    keys alt+n
    portrait import-plan frmImportPlan
    kill -TERM "$Program"
    wait "$Program" || true
}

# The closing screen is gone in a moment: a large database keeps it, and the program is held while it is looked at.
closing() {
    step "the closing"
    change "with recursive n(i) as (select 1 union all select i + 1 from n where i < 100000)
        insert into Indoor_Items (Location, Category, Type, Standard) select 'Attic', 'Art', 'Clock ' || i, 0 from n"
    start_at_menu
    keys alt+x
    portrait message MsgBox
    keys Return
    until_true "the closing screen" is_in_front frmProgress
    kill -STOP "$Program"
    portrait frmProgress
    kill -CONT "$Program"
    ends_with 0
}

export QT_SCALE_FACTOR=2 # the help shows the pictures at half their size
large_titles
first_run
household_with_assets pictures "update Inventory set [Parts Type] = 'Manufacturer', [Parts Coverage] = '80',
    [Parts Amount] = '\$250.00', [Parts Month] = 'Oct', [Parts Day] = '23', [Parts Year] = '2027',
    [Warranty Description] = 'Carry-in only; keep the receipt.' where Type = 'Camcorder';
    update Personal_Info set [Policy Coverage] = '\$50,000.00'"
start_at_menu
household_screens
reports
search_and_asset
name_lists
backups
import
closing
