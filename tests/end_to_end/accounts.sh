# SPDX-License-Identifier: GPL-3.0-or-later
# The financial accounts: one is added beside another, stepped to and changed, the other deleted.

Accounts="select [Financial Institution], Address, Phone1 || Phone2 || Phone3, [Account Number], [Available Balance],
    [As Of], [Account Type], State from Bank_Info order by ID"
Tomorrow=$(date -d '1 day' +%-m/%-d/%Y)

# account_screen KEY: by the option of that access key, from the personal information.
account_screen() {
    click frmGenInfo "Bank Account Information"
    see frmEditBankBoxes account-menu
    go frmBank "alt+$1" Return
}

household accounts "insert into Bank_Info values (1, 'Old Bank', 'None', 'None', 'None', 'None', 'a-100', 'None', 'None',
    '1/2/2020', 'Checking', 'None', 'None');"
start_at_menu
go frmGenInfo alt+r

step "one is added"
account_screen a
# The state leads on to the phone, the phone to the type by itself.
texts 'First Bank' '1 Main St' Utica ny3155550100 A-100 '' 1234.5 ''
see frmCalendar account-calendar # which the date opens
go frmBank Right Return
shot account-filled-in
keys Return
answer account-added Return
expect "$Accounts" "Old Bank|None|NoneNoneNone|a-100|None|1/2/2020|Checking|None
First Bank|1 Main St|3155550100|A-100|\$1234.50|$Tomorrow|Checking|NY"

step "it is changed, and the other deleted"
account_screen v
keys alt+n
shot account-second-of-two
texts 'New Bank' '2 Side St'
keys alt+c
answer account-changes-lost n
keys alt+u
answer account-updated Return
account_screen d
keys Return
answer account-delete y
expect "$Accounts" "New Bank|2 Side St|3155550100|A-100|\$1,234.50|$Tomorrow|Checking|NY"
tell_to_end
