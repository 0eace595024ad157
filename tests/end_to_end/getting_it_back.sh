# SPDX-License-Identifier: GPL-3.0-or-later
# A household that was damaged comes back by the window and by the command, and goes out whole to other programs.

Commands=$Place/prefix/bin

two_closes() {
    step "two closes: the second keeps the backup of the first"
    cmake --install "$Build" --prefix "$Place/prefix" >/dev/null
    household back
    local city
    for city in Utica Rome; do
        change "update Personal_Info set [City] = '$city'"
        start_at_menu
        leave "closed-in-$city"
    done
    same "$(cd "$HOME/.local/share/KTL-backups" && command find . -name KTL.db | wc -l)" 1 "not one earlier backup"
    expect_mode "$HOME/.local/share/KTL-backups" 700
}

# Each page but the first, as by a disk that fails.
damage() {
    dd if=/dev/urandom of="$Database" bs=1024 seek=1 count=$(($(stat -c %s "$Database") / 1024 - 1)) conv=notrunc status=none
}

by_the_window() {
    step "damaged page by page: the launcher offers the backups, and keys bring one back"
    damage
    cp "$Database" "$Place/damaged.db"
    start "$Commands/kestrill"
    answer cannot-load Return
    see frmRestore backups
    keys F1
    until_true "the page about the window" has_title "Getting Your List Back - Kestrill Help"
    go frmRestore Escape
    keys Down Return
    answer go-back Return
    see frmRestored restored
    keys Return
    ends_with 3
    same "$(sql "$Database" "select City from Personal_Info")" Utica "not the earlier backup"
    cmp -s "$Place/damaged.db" "$HOME"/.local/share/KTL-backups/*_put-aside/KTL.db || fail "today's file was not put aside"
    start_at_menu
    tell_to_end
}

# Nobody knows how large the frame of a first window is before it is there.
in_large_type() {
    step "in large type the first window of a program stays within the display, frame and all"
    QT_FONT_DPI=140 start "$Commands/kestrill-restore"
    wait_screen frmRestore
    until_true "a window within the display" is_within_display
    shot backups-in-large-type
    keys alt+c
    ends_with 0
}

is_within_display() {
    local bottom frame
    read -r _ _ _ bottom <<<"$(rectangle_of "$(active_window)")"
    read -r -a frame <<<"$(xprop -id "$(active_window)" _NET_FRAME_EXTENTS | sed 's/.*= //; s/,//g')"
    [ "${frame[3]}" -gt 0 ] && [ $((bottom + frame[3])) -le 768 ]
}

by_the_command() {
    step "damaged again: the command brings the last backup back, and says what it is"
    local status=0
    damage
    "$Commands/kestrill-check" >>"$Log" 2>&1 || status=$?
    same "$status" 3 "the check says $status of a damaged file"
    "$Commands/kestrill-restore" --restore last --yes 2>&1 | grep 'To go back: kestrill-restore --restore' >>"$Log"
    same "$(sql "$Database" "select City from Personal_Info")" Rome "not the last backup"
    "$Commands/kestrill-check" >>"$Log"
}

everything_out() {
    step "exported: another program reads each text as it is"
    local columns='[Financial Institution], [Address], [Phone1], [Phone2], [Phone3], [Account Number], [City]'
    change "insert into Bank_Info values (7, '\"quoted\", and' || char(13, 10) || 'more',
        ' blanks ', char(27) || '[2J', '=1+1', '\\', char(128512, 8238), ''';--', '\$1.00', '1/1/2026', 'None',
        'caf' || char(233), 'NY')"
    env -u DISPLAY "$Commands/kestrill-export" "$Place/export" >>"$Log"
    cp "$Database" "$Place/copy.db"
    same "$(sqlcipher_with_key "$Place/copy.db" ".mode csv" ".import '$Place/export/Bank_Info.csv' back" \
        "select count(*) from (select $columns from Bank_Info intersect select $columns from back)")" 1 "a text has changed"
    holds "$Place/export/Cover Sheet.pdf" Rome
    expect_mode "$Place/export" 700
    start "$Commands/kestrill-export"
    until_true "the question where to" has_title "Choose The Folder For The Export"
    keys Escape
    see frmExport export
    keys alt+c
    ends_with 0
}

two_closes
by_the_window
in_large_type
by_the_command
everything_out
