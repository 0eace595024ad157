# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2016,SC2154 # amounts have a "$"; the files of this folder share their variables
# The policy of the home, the alert at the start, and what the assets are worth beside the coverage.

Policy="select [Policy Company], [Policy Number], [Policy Coverage], [Policy Notify] from Personal_Info"

# asset AREA AMOUNT: the values of a row of the inventory.
asset() {
    printf "(null, '%s', 'Attic', 'Art', 'Clock', '2001', 'Unknown', 'Unknown', 'Unknown', '1/2/2020', '%s', 'No'" "$@"
    printf ", 'None'%.0s" {13..28}
    printf ')'
}

insured_household() {
    use_home "$Place/worth"
    "$Here/../../scripts/lay-database" "$Build/data/KTL.db"
    sqlcipher_with_key "$Database" "update Personal_Info set [Introduced] = '1', [AssetValue] = 15000000;
        insert into Inventory values $(asset Indoor '$1,250.00'), $(asset Mobile '$250.00')"
    start_program
    wait_screen frmMain
}

policy_by_keys_and_calendar() {
    step "the policy of the home"
    keys alt+r
    wait_screen frmGenInfo
    click frmGenInfo cmdInsInfo
    wait_screen frmInsInfo
    text Mutual
    keys Tab
    text P-1
    click frmInsInfo chkNotify # on no date
    answer policy-refused Return
    shot policy-refused-colour
    click frmInsInfo picDate
    wait_screen frmCalendar
    keys Next
    shot policy-calendar
    keys Return
    wait_screen frmInsInfo
    click frmInsInfo txtCoverageAmt
    text 1000
    click frmInsInfo chkNotify
    expect "$Policy" 'Mutual|P-1|$1,000.00|Yes' # at once
    shot policy
    keys alt+u
    answer policy-updated Return
    wait_screen frmGenInfo
    click frmGenInfo 'cmdBack(0)'
    answer policy-leave Return
    wait_screen frmMain
}

worth() {
    step "what the assets are worth"
    keys alt+v
    answer coverage-exceeded Return
    wait_screen frmTotals
    shot totals
    keys Return
    wait_screen frmMain
    kill -TERM "$Program"
    ends_with 0
}

# start_with DAYS [PICTURE]: a start that many days before the policy expires; without a picture no alert comes.
start_with() {
    sqlcipher_with_key "$Database" \
        "update Personal_Info set [Policy Expiration] = '$(date -d "$1 days" '+%-m/%-d/%Y')'" >/dev/null
    start_program
    if [ -n "${2:-}" ]; then
        answer "$2" Return
    fi
    wait_screen frmMain
    kill -TERM "$Program"
    ends_with 0
}

alerts() {
    step "the alert at the start"
    start_with 31
    start_with 30 expires-in-30-days
    start_with 1 expires-in-1-day
    start_with 0 expires-today
    start_with -1 has-expired
}

insured_household
policy_by_keys_and_calendar
worth
alerts
