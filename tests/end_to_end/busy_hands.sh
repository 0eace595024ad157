# SPDX-License-Identifier: GPL-3.0-or-later
# Hands that are faster than the program: what they do while it is busy comes all at once when it goes on.

# while_busy COMMAND...: the program is stopped meanwhile.
while_busy() {
    kill -STOP "$Program"
    "$@"
    kill -CONT "$Program"
    wait_still
}

# locate SCREEN CONTROL...: keeps the places of controls, to be clicked when nobody can be asked for them.
locate() {
    local control
    for control in "${@:2}"; do
        find "$1" "$control"
        Places[$control]="$((X + W / 2)) $((Y + H / 2))"
    done
}

# shellcheck disable=SC2086 # two numbers
press_on() { click_at ${Places[$1]}; }

# answer_and_press KEY CONTROL: a click right behind the key that answers a box.
answer_and_press() {
    xdotool key --delay 0 "$1"
    press_on "$2"
}

screens_shown() {
    local window
    for window in $(windows); do
        role_of "$window"
    done | sort | xargs
}

only() { same "$(screens_shown)" "$1" "there is \"$(screens_shown)\", not only \"$1\""; }

declare -A Places
household busy "$(assets 3 "'Indoor', 'Attic', 'Art', 'Clock ' || i, '2001', 'A', 'B', 'C', '1/2/2020', '\$5.00', 'No', 'None',
        'None', 'New'")"
start_at_menu

step "a key behind the one that leaves a screen, and a click behind the answer to a box, reach no screen that goes"
go frmSearch alt+s
text Clock
go frmSearchResults Return
keys_seen Down
while_busy xdotool key --delay 0 Return ctrl+Right # which would sort and show the results
wait_screen frmAddUpDel
only frmAddUpDel
go MsgBox alt+c
go frmSearchResults Return
click frmSearchResults 'Update 1'
locate frmAddUpDel 'Warranty Information' 'Delete Asset' Make
for control in 'Warranty Information' 'Delete Asset'; do
    wait_screen frmAddUpDel
    press_on Make
    text x
    keys alt+c
    wait_screen MsgBox
    while_busy answer_and_press Return "$control"
    only frmSearchResults
    click frmSearchResults 'Update 1'
done

step "it counts where the screen stays"
wait_screen frmAddUpDel
press_on Make
text x
keys alt+c
wait_screen MsgBox
while_busy answer_and_press Escape 'Delete Asset'
wait_screen MsgBox
shot asked-behind-the-answer
keys n
wait_screen frmAddUpDel
expect "select count(*) from Inventory" 3

step "the second click on an item of a list presses nothing behind the list"
keys alt+m
answer changes-left Return
wait_screen frmMain
go frmAuto alt+i
go frmAddUpDel alt+a
pick frmAddUpDel Location location-list 2
pick frmAddUpDel Category category-list 2
locate frmAddUpDel 'Add Asset'
unfold frmAddUpDel Item
# shellcheck disable=SC2086 # two numbers
xdotool mousemove ${Places['Add Asset']} click --repeat 2 --delay 60 1
until_true "the list to close" no_list
wait_still
only frmAddUpDel
keys alt+m
answer asset-left Return
wait_screen frmMain
tell_to_end
