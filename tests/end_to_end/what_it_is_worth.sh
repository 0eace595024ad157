# SPDX-License-Identifier: GPL-3.0-or-later
# The policy of the home, what the assets are worth beside its coverage, and the alert at the start.

household worth "update Personal_Info set [AssetValue] = 15000000;
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
tell_to_end

step "the alert at the start"
change "update Personal_Info set [Policy Expiration] = '$(date -d "30 days" +%-m/%-d/%Y)'"
start_program
answer expires-in-30-days Return
wait_screen frmMain
tell_to_end
