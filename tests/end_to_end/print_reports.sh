# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2034,SC2154 # the files of this folder share their variables
# On paper: the reports looked at, printed and saved, with a print service, a stopped one and none.
# shellcheck source=tests/end_to_end/print_service.sh
. "$Here/print_service.sh"

# shellcheck source=tests/end_to_end/household.sh
. "$Here/household.sh"

print_it() {
    keys ctrl+p
    until_true "the dialogue to print" has_title Print
    [ -z "${1:-}" ] || shot "$1"
    keys Return
}

an_area() {
    step "an area: looked at, guarded, printed, saved"
    start_at_menu
    go frmPrint alt+p
    shot print-menu
    keys alt+i
    see AssetReport asset-report
    keys ctrl+0 ctrl+Next
    shot asset-report-whole-page
    front frmPrint
    keys alt+s
    answer print-guard Return
    front AssetReport
    print_it print-dialogue
    until_true "the printed report" test -s "$Printed"
    holds "$Printed" "Asset Report" "Total Pages: 2" "Brass Kestrel" "\$1,234.56" "chipped near the hinge"
    save_as "$Pictures/asset-report.csv"
    grep -q 'Indoor,Attic,Art,Brass Kestrel,1931,.*,80.00,None' "$Pictures/asset-report.csv" ||
        fail "the table: $(cat "$Pictures/asset-report.csv")"
    shown_and_saved asset-report-saved "Page: 2" "Camcorder"
}

cover_sheet_and_form() {
    step "the cover sheet and the form"
    front frmPrint
    keys alt+s
    report_saved CoverSheet cover-sheet "Fairbanks" "Tidewater Mutual" "\$7,834.29"
    front frmPrint
    keys alt+f
    report_saved FillOutForm form "Year Asset Was Made =>" "(Select One)"
}

troubled_printing() {
    step "a queue that is stopped, one that refuses, and no print service at all"
    front frmPrint
    go AssetReport alt+a
    cupsdisable Paper
    print_it
    until_true "the job that waits" job_waits
    wait_screen AssetReport
    cupsreject Paper
    print_it
    answer print-refused Return
    stop_print_service
    front AssetReport
    keys ctrl+p
    answer print-without-service Return
    front AssetReport
    save_as "$Place/all.pdf"
    holds "$Place/all.pdf" "Lawn Mower"
}

job_waits() { [ -n "$(lpstat -o)" ]; }

closed_meanwhile() {
    step "closed while the report is open"
    front frmPrint
    go frmMain alt+c
    keys alt+x
    answer print-exit Return
    ends_with 0
    [ -s "$Backup" ] || fail "no backup was made"
}

household_with_assets printing
start_print_service
an_area
cover_sheet_and_form
troubled_printing
closed_meanwhile
unset CUPS_SERVER
