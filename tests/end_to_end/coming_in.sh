# SPDX-License-Identifier: GPL-3.0-or-later
# A list that a spreadsheet has saved comes in by keys alone, what can't go in comes back in a file, and a restore takes all
# of it back.

ListFile="$Place/My things.csv"

# As a spreadsheet writes it where the comma stands before the cents. There is no area, one heading is nobody's, the dates
# have two orders, one thing is there already, and one has no price.
write_list() {
    printf '%s\r\n' 'Things in the flat;;;;;;' ';;;;;;' 'Item;Room;Category;Bought;Price;Made by;Colour' \
        'Desk Lamp;Attic;Lamps;3/4/2021;80,00 €;Acme;red' \
        'Armchair;Study;Furniture;5/6/2020;1.250,50 €;Hollis;"dark
green"' \
        'Mirror;Bedroom;Furniture;7/8/2019;;Hollis;' 'Kettle;Kitchen;Appliances;1/2/2022;39,95 €;Brightwater;' >"$ListFile"
}

choose_list() {
    until_true "the question for the file" has_title "Choose The List To Import"
    text "$1"
    keys Return
}

while_kestrill_runs() {
    step "an import is refused while Kestrill runs"
    household coming
    change "insert into Inventory select null, 'Indoor', 'Attic', 'Lamps', 'Desk Lamp', '2026', 'Acme', 'Unknown', 'Unknown',
        '4/3/2021', '\$80.00', 'No', 'None', 'Colour: red', 'New'$(printf ", 'None'%.0s" {1..13})"
    Before=$(dump "$Database")
    write_list
    start_at_menu
    local kestrill=$Program
    start "$Build/bin/kestrill-import"
    answer running Return
    kill -TERM "$kestrill"
    ends_with 0 "$kestrill"
}

what_goes_where() {
    step "the list is chosen, its columns go where they belong, and its dates are told apart"
    keys alt+f
    choose_list "$ListFile"
    see frmImport columns
    keys End Up alt+g
    text make
    keys alt+a
    text indoor
    keys Return
    answer two-orders Return
    keys Down Down
    see frmImport told
    keys alt+n
}

what_will_be() {
    step "what will be: one thing is there already, one can't go in and is left out"
    see frmImportPlan wrong-row
    keys alt+l
    shot left-out
    keys alt+s Down
    shot coming
    keys alt+i
    see frmImported imported
    keys Return
    ends_with 0
    expect "select group_concat(Type || ' ' || [Date Purchased] || ' ' || Amount || ' ' || Make, '; ') from Inventory
        where Type != 'Desk Lamp'" 'Armchair 6/5/2020 $1,250.50 Hollis; Kettle 2/1/2022 $39.95 Brightwater'
    expect "select count(*) from Inventory" 3
    grep -q '^Mirror;.*The Purchase Price Of The Asset Must Be Entered' "${ListFile%.csv} - wrong rows.csv" ||
        fail "the wrong row is not in its file"
}

back_again() {
    step "the restore takes the import back"
    local aside
    aside=$(cd "$HOME/.local/share/KTL-backups" && echo *_put-aside)
    "$Build/bin/kestrill-restore" --restore "$aside" --yes >>"$Log" 2>&1
    same "$(dump "$Database")" "$Before" "the household is not as it was before the import"
}

while_kestrill_runs
what_goes_where
what_will_be
back_again
