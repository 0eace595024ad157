# SPDX-License-Identifier: GPL-3.0-or-later
# The page of the help that tells how to get the list back, done word for word: its own lines are run.

# paste_guide: in a terminal of the user's, at no place in particular. It says where the old file is.
paste_guide() {
    local said
    # The lines of the page as the viewer shows them.
    said=$(cd / && sed -n '/<pre id="restore-by-hand">/,/<\/pre>/p' "$Here/../../help/restore.html" |
        sed 's/<[^>]*>//g; s/&lt;/</g; s/&gt;/>/g; s/&quot;/"/g; s/&amp;/\&/g' | bash 2>&1) || fail "the lines of the page: $said"
    [[ $said == "The backup is in place. The old file is in /"* ]] || fail "the lines of the page say: $said"
    Aside=/${said#*/}
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
    step "the whole folder lost, and brought back; the program works with it"
    rm -r "${Database%/C_db/*}"
    paste_guide
    start_at_menu
    tell_to_end
    same "$(dump "$Database")" "$Saved" "the household is not that of the backup"
}

step "a household with a backup"
household "restored home" # the name has a blank
start_at_menu
leave restore-exit
Saved=$(dump "$Backup")
damaged
lost
