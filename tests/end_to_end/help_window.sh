# SPDX-License-Identifier: GPL-3.0-or-later
# F1 with real windows: read beside a screen, over a message box, and closed by the end of the program.

help_shows() { until_true "the page \"$1\"" has_title "$1 - Kestrill Help"; }

read_beside_a_screen() {
    step "help beside a screen: the search, and finding on the page"
    keys F1
    help_shows "Main Menu"
    shot help
    keys ctrl+k
    text warranty
    shot help-search
    keys Return
    help_shows "Asset Warranty Information"
    keys ctrl+f
    text receipt
    shot help-find
    keys Escape alt+Left
    help_shows "Main Menu"
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
