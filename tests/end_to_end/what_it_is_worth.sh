# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2016,SC2154 # amounts have a "$"; the files of this folder share their variables
# The policy of the home, the alert at the start, and what the assets are worth beside the coverage.

policy_by_keys_and_calendar() {
    step "the policy of the home"
    go frmGenInfo alt+r
    click frmGenInfo cmdInsInfo
    wait_screen frmInsInfo
    texts Mutual P-1
    click frmInsInfo chkNotify # on no date
    answer policy-refused Return
    shot policy-refused-colour
    click frmInsInfo picDate
    wait_screen frmCalendar
    keys Next
    shot policy-calendar
    go frmInsInfo Return
    enter frmInsInfo txtCoverageAmt 1000
    click frmInsInfo chkNotify
    expect "select [Policy Company], [Policy Number], [Policy Coverage], [Policy Notify] from Personal_Info" \
        'Mutual|P-1|$1,000.00|Yes' # at once
    shot policy
    keys alt+u
    answer policy-updated Return
    click frmGenInfo 'cmdBack(0)'
    answer policy-leave Return
    wait_screen frmMain
}

worth() {
    step "what the assets are worth"
    keys alt+v
    answer coverage-exceeded Return
    see frmTotals totals
    go frmMain Return
    tell_to_end
}

alert() {
    step "the alert at the start"
    change "update Personal_Info set [Policy Expiration] = '$(date -d "30 days" +%-m/%-d/%Y)'"
    start_program
    answer expires-in-30-days Return
    wait_screen frmMain
    tell_to_end
}

Rest="'Attic', 'Art', 'Clock', '2001', 'Unknown', 'Unknown', 'Unknown', '1/2/2020'"
household worth "update Personal_Info set [AssetValue] = 15000000;
    $(assets "values ('Indoor', $Rest, '\$1,250.00', 'No', 'None', 'None', 'New'),
        ('Mobile', $Rest, '\$250.00', 'No', 'None', 'None', 'New')")"
start_at_menu
policy_by_keys_and_calendar
worth
alert
