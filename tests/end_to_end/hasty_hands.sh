# SPDX-License-Identifier: GPL-3.0-or-later
# Hands that keep a key down or click twice, at the places where that could cost something.

# hold KEY: until it has repeated itself a few times.
hold() {
    xdotool keydown "$1"
    sleep 1
    xdotool keyup "$1"
    wait_still
}

step "the second click of a double click presses nothing on the screen that the first has opened"
household hasty
start_at_menu
find frmMain Outdoor
xdotool mousemove $((X + W / 2)) $((Y + H / 2)) click --repeat 2 --delay 60 1
wait_screen frmAuto
wait_still
wait_screen frmAuto
go frmMain alt+m

step "Enter kept down adds the asset once and answers no box, nor does an access key"
go frmAuto alt+i
go frmAddUpDel alt+a
pick frmAddUpDel Location location-list 2
pick frmAddUpDel Category category-list 2
enter frmAddUpDel Item 'Brass Kestrel'
click frmAddUpDel 'Purchase Date'
wait_screen frmCalendar
go frmAddUpDel Return
enter frmAddUpDel 'Purchase Price' 12
enter frmAddUpDel Make Northlight
hold Return
see MsgBox held-enter
expect "select Type, Make, Amount from Inventory" 'Brass Kestrel|Northlight|$12.00'
keys Return
wait_screen frmAddUpDel
xdotool keydown alt
hold m
xdotool keyup alt
see MsgBox held-access-key
keys Return
wait_screen frmMain
tell_to_end
