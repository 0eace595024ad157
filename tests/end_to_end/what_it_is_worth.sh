# SPDX-License-Identifier: GPL-3.0-or-later
# The policy of the home, what the assets are worth beside its coverage, and a financial account.

household worth "update Personal_Info set [AssetValue] = 15000000;
    insert into Bank_Info values (1, 'Old Bank', 'None', 'None', 'None', 'None', 'a-100', 'None', 'None', '1/2/2020', 'Checking',
        'None', 'None');
    $(assets 2 "'Indoor', 'Attic', 'Art', 'Clock', '2001', 'A', 'B', 'C', '1/2/2020', '\$750.00', 'No', 'None', 'None', 'New'")"
start_at_menu

step "the policy of the home"
go frmGenInfo alt+r
click frmGenInfo 'Insurance Information'
wait_screen frmInsInfo
texts Mutual P-1
click frmInsInfo Expiration
see frmCalendar policy-calendar
go frmInsInfo Next Return
enter frmInsInfo 'Coverage Amount' 1000
click frmInsInfo 'Notify Me 30 Days Before Policy Expiration'
expect "select [Policy Company], [Policy Number], [Policy Coverage], [Policy Notify] from Personal_Info" \
    'Mutual|P-1|$1,000.00|Yes' # at once
shot policy
keys alt+u
answer policy-updated Return
click frmGenInfo Cancel
answer policy-leave Return
wait_screen frmMain

step "what the assets are worth"
keys alt+v
answer coverage-exceeded Return
see frmTotals totals
go frmMain Return

step "an account"
go frmGenInfo alt+r
click frmGenInfo "Bank Account Information"
see frmEditBankBoxes account-menu
go frmBank alt+a Return
# The state leads on to the phone, the phone to the type by itself.
texts 'First Bank' '1 Main St' Utica ny3155550100 A-100 '' 1234.5 ''
see frmCalendar account-calendar # which the date opens
go frmBank Right Return
shot account-filled-in
keys Return
answer account-added Return
expect "select [Financial Institution], Phone1 || Phone2 || Phone3, [Available Balance], [As Of], State from Bank_Info
    where ID > 1" "First Bank|3155550100|\$1234.50|$(date -d '1 day' +%-m/%-d/%Y)|NY"
tell_to_end
