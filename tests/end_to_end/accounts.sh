# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2016,SC2154 # amounts have a "$"; the files of this folder share their variables
# The financial accounts: two are added, stepped through, one is changed, one deleted; and a change that is killed.

Accounts="select [Financial Institution], Address, Phone1 || Phone2 || Phone3, [Account Number], [Available Balance],
    [As Of], [Account Type], State from Bank_Info order by ID"
Tomorrow=$(date -d '1 day' +%-m/%-d/%Y)
First="First Bank|1 Main St|3155550100|A-100|\$1234.50|$Tomorrow|Checking|NY"
Second="Second Bank|None|NoneNoneNone|a-100|None|$(date +%-m/%-d/%Y)|Savings|None"
Changed="New Bank|2 Side St|${Second#*|None|}"

# account_screen KEY: by the option of that access key, from the main menu or the personal information.
account_screen() {
    if is_in_front frmMain; then
        keys alt+r
    fi
    click frmGenInfo cmdBank
    wait_screen frmEditBankBoxes
    keys "alt+$1"
    shot "account-menu-$1"
    keys Return
    wait_screen frmBank
}

two_are_added() {
    step "two accounts are added"
    account_screen a
    shot account-empty
    # The state leads on to the phone, the phone to the type by itself.
    text $'First Bank\t1 Main St\tUtica\tny3155550100\tA-100\t\t1234.5\t'
    wait_screen frmCalendar # which the date opens
    shot account-calendar
    keys Right Return
    wait_screen frmBank
    shot account-filled-in
    keys Return
    answer account-added Return
    account_screen a
    text "Second Bank"
    click frmBank txtAccount
    text A-100
    keys Return
    answer account-is-there Return
    keys ctrl+a BackSpace Return
    answer account-number-missing Return
    shot account-number-missing-colour
    text a-100
    pick frmBank cmbType 3 3 account-types
    keys Return
    answer account-second-added Return
    wait_screen frmGenInfo
    expect "$Accounts" "$First"$'\n'"$Second"
}

one_is_changed() {
    step "they are stepped through, and one is changed"
    account_screen v
    shot account-first-of-two
    keys alt+n
    shot account-second-of-two
    click frmBank txtAccount
    keys 5
    answer account-number-stays Return
    keys alt+c # nothing has changed
    account_screen v
    keys alt+n
    text $'New Bank\t2 Side St' # an address that was not there is no change, the name is
    keys alt+c
    answer account-changes-lost n
    keys alt+u
    answer account-updated Return
    wait_screen frmGenInfo
    expect "$Accounts" "$First"$'\n'"$Changed"
}

one_is_deleted() {
    step "one is deleted, and the program killed in the middle of changing the other"
    account_screen d
    shot account-to-delete
    keys Return
    answer account-delete y
    account_screen v
    text $'\tTyped'
    kill -9 "$Program"
    ends_with 137
    same "$(sql "$Database" "pragma integrity_check; $Accounts")" "ok"$'\n'"$Changed" "an account is lost"
}

use_home "$Place/accounts"
"$Here/../../scripts/lay-database" "$Build/data/KTL.db"
sqlcipher_with_key "$Database" "update Personal_Info set [Introduced] = '1'"
start_program
wait_screen frmMain
two_are_added
one_is_changed
one_is_deleted
