# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2034,SC2154 # the files of this folder share their variables
# The program as it is installed, started by its launcher: twice, to see that the database is laid once.

install_and_start() {
    step "installed, and started by its launcher"
    use_home "$Place/installed"
    cmake --install "$Build" --prefix "$Place/prefix" >/dev/null
    start_installed
    shot installed
    expect_mode "$(dirname "$Database")" 700
    expect_mode "$Database" 600
    same "$(dump "$Database")" "$(dump "$Build/data/KTL.db")" "the database laid is not the one shipped"
    kill -TERM "$Program"
    ends_with 0
}

start_again() {
    step "started again: the database is left as it is"
    sqlcipher_with_key "$Database" "update Personal_Info set [Introduced] = '1', [City] = 'Utica'"
    start_installed
    wait_screen frmMain
    expect "select City from Personal_Info" Utica
    kill -TERM "$Program"
    ends_with 0
}

# Behind the splash screen comes the menu, or the introduction of a first run.
start_installed() {
    "$Place/prefix/bin/kestrill" >>"$Log" 2>&1 &
    Program=$!
    until_true "a screen behind the splash screen" is_past_splash
}

is_past_splash() { [[ $(screen_in_front) =~ frm(Main|Introduction) ]]; }

install_and_start
start_again
