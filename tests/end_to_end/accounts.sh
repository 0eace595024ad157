# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2016,SC2154 # amounts have a "$"; the files of this folder share their variables
# The financial accounts: two are added, stepped through, one is changed, one deleted; and a change that is killed.

Accounts="select [Financial Institution], Address, Phone1 || Phone2 || Phone3, [Account Number], [Available Balance],
    [As Of], [Account Type], State from Bank_Info order by ID"
Today=$(date +%-m/%-d/%Y)
First="First Bank|1 Main St|3155550100|A-100|\$1234.50|$(date -d '1 day' +%-m/%-d/%Y)|Checking|NY"
Second="Second Bank|None|NoneNoneNone|a-100|None|$Today|Savings|None"
Changed="New Bank|2 Side St|NoneNoneNone|a-100|None|$Today|Savings|None"

# account_screen KEY: by the option of that access key, from the personal information.
account_screen() {
    click frmGenInfo cmdBank
    wait_screen frmEditBankBoxes
    keys "alt+$1"
    shot "account-menu-$1"
    go frmBank Return
}

two_are_added() {
    step "two accounts are added"
    account_screen a
    shot account-empty
    # The state leads on to the phone, the phone to the type by itself.
    texts 'First Bank' '1 Main St' Utica ny3155550100 A-100 '' 1234.5 ''
    wait_screen frmCalendar # which the date opens
    shot account-calendar
    go frmBank Right Return
    shot account-filled-in
    keys Return
    answer account-added Return
    account_screen a
    text "Second Bank"
    enter frmBank txtAccount A-100
    keys Return
    answer account-is-there Return
    shot account-is-there-colour
    keys ctrl+a
    text a-100
    pick frmBank cmbType account-types 3 3
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
    texts 'New Bank' '2 Side St' # an address that was not there is no change, the name is
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
    texts '' Typed
    kill_program
    expect "$Accounts" "$Changed"
}

household accounts
start_at_menu
go frmGenInfo alt+r
two_are_added
one_is_changed
one_is_deleted
