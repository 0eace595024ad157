# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2034,SC2154 # the files of this folder share their variables
# The page of the help that tells how to get the list back, done word for word: its own lines are run.
# shellcheck source=tests/end_to_end/household.sh
. "$Here/household.sh"

Page=$Here/../../help/restore.html

# guide_of ID: the lines of that block on the page, as the viewer shows them.
guide_of() {
    sed -n "/<pre id=\"$1\">/,/<\/pre>/p" "$Page" |
        sed 's/<[^>]*>//g; s/&lt;/</g; s/&gt;/>/g; s/&quot;/"/g; s/&amp;/\&/g'
}

# paste_guide: in a terminal of the user's, at no place in particular. It says where the old file is.
paste_guide() {
    local said
    said=$(cd / && guide_of restore-by-hand | bash 2>&1) || fail "the lines of the page: $said"
    [[ $said == "The backup is in place. The old file is in /"* ]] || fail "the lines of the page say: $said"
    Aside=/${said#*/}
}

backed_up_household() {
    step "a household with a backup"
    household_with_assets "restored home" # the name has a blank
    start_program
    wait_screen frmMain
    keys alt+x
    answer restore-exit Return
    ends_with 0
    Saved=$(dump "$Backup")
}

# The file is damaged in its middle, and a journal of another day lies beside it.
damaged() {
    step "damaged, and brought back by the lines of the page"
    dd if=/dev/urandom of="$Database" bs=1024 seek=8 count=40 conv=notrunc 2>/dev/null
    head -c 5000 /dev/urandom >"$Database-journal"
    local broken
    broken=$(sha256sum <"$Database")
    paste_guide
    same "$(dump "$Database")" "$Saved" "the household is not that of the backup"
    same "$(dump "$Backup")" "$Saved" "the backup has changed"
    expect_mode "$Database" 600
    [ ! -e "$Database-journal" ] || fail "the journal of the damaged list was left beside the backup"
    same "$(sha256sum <"$Aside/KTL.db")" "$broken" "the damaged list was not put aside"
}

lost() {
    step "the whole folder lost, and brought back"
    rm -r "${Database%/C_db/*}"
    paste_guide
    same "$(dump "$Database")" "$Saved" "the household is not that of the backup"
}

works_again() {
    step "the program works with it"
    start_program
    wait_screen frmMain
    keys alt+v
    answer restored-coverage Return
    wait_screen frmTotals
    keys Return
    wait_screen frmMain
    kill -TERM "$Program"
    ends_with 0
    same "$(dump "$Database")" "$Saved" "the household is not that of the backup"
}

backed_up_household
damaged
lost
works_again
