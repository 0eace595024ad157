# SPDX-License-Identifier: GPL-3.0-or-later
# F1 with real windows: read beside a screen, over a message box, and closed by the end of the program.

help_shows() { until_true "the page \"$1\"" has_title "$1 - Kestrill Help"; }

read_beside_a_screen() {
    step "help beside a screen"
    keys F1
    help_shows "Main Menu"
    shot help
    front frmMain
    go frmPrint alt+p
    go frmMain alt+c
}

over_a_box() {
    step "help over a message box, which waits"
    go MsgBox alt+x
    keys F1
    help_shows "Main Menu"
    keys F6 Down Return
    help_shows "The Area Menu"
    shot help-over-box
    keys Escape
    answer help-box alt+n
    wait_screen frmMain
    keys F1
    help_shows "Main Menu"
    tell_to_end
}

household help
start_at_menu
read_beside_a_screen
over_a_box
