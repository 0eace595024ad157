# SPDX-License-Identifier: GPL-3.0-or-later
# From the first start to the second by keys alone, each screen known by the name that is read out: on any display, with
# the program of a build or the installed one.

Message="Kestrill by Brindlewick Software"

step "by keyboard alone on $QT_QPA_PLATFORM: the first start"
use_home "${KESTRILL_HOME:-$Place/keyboard-$QT_QPA_PLATFORM}"
lay_database
start_program
on_heard "Thank You For Choosing Kestrill" Return
on_heard "A keyboard*" Return
on_heard "Personal Information"
type_household
keys alt+s

step "an asset"
on_heard "Welcome To Kestrill Main Menu" alt+i
on_heard "Indoor Asset Management" alt+a
on_heard "Add Indoor Asset To Inventory"
for _ in location category; do
    keys_seen alt+Down
    keys_seen Down Down # past the row that leads to the list editors
    keys_seen Return
    keys_seen Tab
done
text 'Brass Kestrel'
keys Tab Tab Tab Tab Tab Tab space
on_heard "Click A Date Or Press Space Bar To Close" Left Return
on_heard "Add Indoor Asset To Inventory" Tab
text 80
shot "asset-on-$QT_QPA_PLATFORM"
keys alt+a
on_heard "$Message" Return
expect "select Type, Amount from Inventory" 'Brass Kestrel|$80.00'
expect "select Type from Indoor_Items where Standard = 0" 'Brass Kestrel'
on_heard "Add Indoor Asset To Inventory" alt+m
on_heard "$Message" Return

step "the close, and the second start"
on_heard "Welcome To Kestrill Main Menu" alt+x
on_heard "$Message" Return
ends_with 0
same "$(dump "$Backup")" "$(dump "$Database")" "the backup differs from the database"
start_program
on_heard "Welcome To Kestrill Main Menu"
expect "select City from Personal_Info" Albany
until_true "the button Exit" is_placed Exit
tell_to_end

# What has been installed lays the database itself.
[ "$Build" != /usr ] || {
    step "a home in which none can be laid: the start says so, and leads to the backups"
    use_home "$Place/refused"
    : >"$HOME/.local"
    start_program
    on_heard "$Message" Return
    on_heard "Restore From Backup" alt+c
    ends_with 3
}
