# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2034,SC2154 # the files of this folder share their variables
# On paper: the reports looked at, printed and saved, with a print service, a stopped one and none.
# shellcheck source=tests/end_to_end/print_service.sh
. "$Here/print_service.sh"

print_dialogue() {
    keys ctrl+p
    until_true "the dialogue to print" has_title Print
}

# printed PAGES COPIES TEXT...: what has come out last.
printed() {
    until_true "the printed report" test -s "$Printed.copies"
    same "$(pdfinfo "$Printed" | sed -n 's/^Pages: *//p') $(cat "$Printed.copies")" "$1 $2" "other pages or copies than $1, $2"
    holds "$Printed" "${@:3}"
    rm "$Printed.copies"
}

an_area() {
    step "an area: looked at, guarded, printed, saved"
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
    print_dialogue
    keys Return
    printed 2 1 "Asset Report" "Total Pages: 2" "Brass Kestrel" "\$1,080.00" "chipped near the hinge"
    save_as "$Pictures/asset-report.csv"
    grep -q 'Indoor,Attic,Art,Brass Kestrel,1931,.*,1080.00,None' "$Pictures/asset-report.csv" ||
        fail "the table: $(cat "$Pictures/asset-report.csv")"
    report_saved AssetReport asset-report-saved "Page: 2" "Brass Kestrel"
}

some_pages_of_many() {
    step "two copies of two pages, of a report on a thousand assets"
    front frmPrint
    go AssetReport alt+a
    print_dialogue
    wait_still
    keys_seen alt+o
    keys Tab Tab Tab Tab Down Down # the third kind of range
    texts '' 2-3 '' 2
    shot print-dialogue
    keys Return
    printed 2 2 "Page: 2" "Page: 3" "Spanner 9"
}

cover_sheet_and_form() {
    step "the cover sheet and the form"
    keys Escape
    wait_screen frmPrint
    keys alt+s
    report_saved CoverSheet cover-sheet "Fairbanks" "Tidewater Mutual" "\$7,834.29"
    front frmPrint
    keys alt+f
    report_saved FillOutForm form "Year Asset Was Made =>" "(Select One)"
}

troubled_printing() {
    step "a queue that is stopped, one that refuses, and no print service at all"
    front frmPrint
    go AssetReport alt+o
    cupsdisable Paper
    print_dialogue
    keys Return
    until_true "the job that waits" job_waits
    wait_screen AssetReport
    cupsreject Paper
    print_dialogue
    keys Return
    answer print-refused Return
    stop_print_service
    front AssetReport
    keys ctrl+p
    answer print-without-service Return
    front AssetReport
    save_as "$Place/outdoor.pdf"
    holds "$Place/outdoor.pdf" "Lawn Mower"
}

job_waits() { [ -n "$(lpstat -o)" ]; }

closed_meanwhile() {
    step "closed while the report is open"
    front frmPrint
    go frmMain alt+c
    leave print-exit
}

household printing "update Personal_Info set [Last] = 'Fairbanks', [Policy Company] = 'Tidewater Mutual',
        [AssetValue] = 78342900;
    with recursive n(i) as (select 1 union all select i + 1 from n where i < 1000)
    $(assets "select 'Mobile', 'Car', 'Tools', 'Spanner ' || i, '2001', 'A', 'B', i, '1/2/2020', '\$1.00', 'No', 'None', 'None',
        'New' from n")
    with recursive n(i) as (select 1 union all select i + 1 from n where i < 7)
    $(assets "select 'Indoor', 'Library', 'Antiques', 'Secretary Desk With Hidden Drawer', '1880', 'Hollis & Daughter',
        'Walnut, rolled front', 'Branded ' || i || ' inside the left drawer', '3/14/2001', '\$4,850.00', 'Yes',
        'Desk, second drawer', 'Rolled front, three keys, of which one is worn. The upper left drawer has a false back behind
 which lies a second lock. Restored in 2004. The veneer of the right door is chipped near the hinge.', 'Used' from n")
    $(assets "values ('Indoor', 'Attic', 'Art', 'Brass Kestrel', '1931', 'Unknown', 'Unknown', 'Unknown', '10/23/2026',
        '\$1,080.00', 'No', 'None', 'None', 'New'), ('Outdoor', 'Shed', 'Garden', 'Lawn Mower', '2020', 'Greenfield', 'LM 48',
        'None', '4/11/2020', '\$389.50', 'Yes', 'File cabinet', 'None', 'New')")"
start_print_service
start_at_menu
an_area
some_pages_of_many
cover_sheet_and_form
troubled_printing
closed_meanwhile
unset CUPS_SERVER
