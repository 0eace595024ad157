# SPDX-License-Identifier: GPL-3.0-or-later
# Hands that keep a key down, click twice, or press beside the text: at the places where that could cost something.

# hold KEY: until it has repeated itself a few times.
hold() {
    xdotool keydown "$1"
    sleep 1
    xdotool keyup "$1"
    wait_still
}

# press_arrow CONTROL: of its list, which is closed again without a choice.
press_arrow() {
    unfold frmAddUpDel "$1"
    keys Escape
    until_true "the list to close" no_list
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

step "presses on the arrows of lists, and on a scroll bar, leave the boxes as the Tab key does"
go frmAuto alt+i
go frmAddUpDel alt+a
pick frmAddUpDel Location location-list 2
pick frmAddUpDel Category category-list 2
enter frmAddUpDel Item 'Brass Kestrel'
press_arrow Year
texts '' Northlight
enter frmAddUpDel 'Purchase Price' 12
press_arrow Item
click frmAddUpDel 'Receipt On File: Yes'
text Safe
find frmAddUpDel Description
click_at $((X + W - 8)) $((Y + H - 12)) # the foot of its scroll bar
text 'Of brass'
shot pressed-beside

step "a calendar that is turned by the wheel and by keys gives back the day that it shows"
click frmAddUpDel 'Purchase Date'
wait_screen frmCalendar
find frmCalendar Calendar
xdotool mousemove $((X + W / 2)) $((Y + H / 2)) click 4
wait_still
keys_seen ctrl+Prior Home
shot calendar-turned
keys Return
wait_screen frmAddUpDel
Turned=$(date -d "$(date +%Y-%m-01) - 13 months" +%-m/1/%Y)

step "Enter kept down adds the asset once and answers no box, nor does an access key"
find frmAddUpDel Make
click_at $((X + W / 2)) $((Y + H / 2))
hold Return
see MsgBox held-enter
expect "select count(*) from Inventory" 1
keys Return
wait_screen frmAddUpDel
expect "select Type, Year, Make, Model, [Date Purchased], Amount, [Receipt Location], Description from Inventory" \
    "Brass Kestrel|$(date +%Y)|Northlight|Unknown|$Turned|\$12.00|Safe|Of brass"
xdotool keydown alt
hold m
xdotool keyup alt
see MsgBox held-access-key
keys Return
wait_screen frmMain
tell_to_end
