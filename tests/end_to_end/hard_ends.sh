# SPDX-License-Identifier: GPL-3.0-or-later
# Ends that the program doesn't choose: what was confirmed stays, and nothing is made that was not there.

killed_in_a_search() {
    step "killed in the midst of a search, which writes what it finds"
    household killed-search "$(assets 30000 "'Indoor', 'Attic', 'Art', 'Clock ' || i, '2001', 'A', 'B', i, '1/2/2020',
        '\$1.00', 'No', 'None', 'None', 'New'")"
    local before
    before=$(own_tables)
    start_at_menu
    go frmSearch alt+s
    text clock
    keys Return
    until_true "the first write of the search" test -s "$Database-journal"
    kill_program
    [ -s "$Database-journal" ] || fail "it was not in the midst"
    same "$(own_tables)" "$before" "the search has changed what the household owns"
    start_at_menu
    tell_to_end
    same "$(own_tables)" "$before" "the start after it has changed what the household owns"
}

own_tables() { dump "$Database" | grep -v '^INSERT INTO \("Print"\|Print\) '; }

told_to_end() {
    step "told to end by the system, with a message box open"
    household told
    local before
    before=$(dump "$Database")
    start_at_menu
    go MsgBox alt+x
    tell_to_end
    same "$(dump "$Database")" "$before" "the database has changed"
    [ ! -e "$Backup" ] || fail "a backup was made"
}

moved_away() {
    step "the database is moved away under the program: the next write says so"
    household moved
    start_at_menu
    go frmGenInfo alt+r
    enter frmGenInfo City Lost
    mv "$Database" "$Place/elsewhere.db"
    keys alt+s
    until_true "the reason on the error output" grep -q 'KTL.db was moved' "$Log"
    see FailureBox moved-away
    keys Return
    ends_with 1
    same "$(sql "$Place/elsewhere.db" "select City from Personal_Info")" None "a row went into the file moved away"
    [ ! -e "$Database" ] || fail "a database was made"
}

without_database() {
    step "a start without a database, and a data folder that is there is left alone"
    use_home "$Place/empty"
    start_program
    answer no-database Return
    ends_with 3
    same "$(command find "$HOME" -name '*KTL*')" "" "files were made in the data folder"
    mkdir -p "$(dirname "$Database")"
    lay_database
    [ ! -e "$Database" ] || fail "a database was laid into a folder that was there"
}

killed_in_a_search
told_to_end
moved_away
without_database
