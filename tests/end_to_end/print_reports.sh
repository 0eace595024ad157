# SPDX-License-Identifier: GPL-3.0-or-later
# On paper: the reports looked at, printed and saved, by a print service of the run.

# shellcheck source=tests/end_to_end/print_service.sh
. "$Here/print_service.sh"

print_dialogue() { keys ctrl+p && until_true "the dialogue to print" has_title Print; }
print_all() { print_dialogue && keys Return; }

# printed PAGES COPIES SHARING TEXT...: what has come out last; so many pages share a sheet.
printed() {
    until_true "the printed report" test -s "$Printed.copies"
    same "$(pdfinfo "$Printed" | sed -En 's/^(Author|Pages): *//p' | xargs) $(cat "$Printed.copies")" \
        "Fairbanks $1 $2 media=A4 number-up=$3" "another author, pages or options than $1, $2, $3"
    holds "$Printed" "${@:4}"
    rm "$Printed.copies"
}

an_area() {
    step "an area: looked at, printed, saved"
    go frmPrint alt+p
    shot print-menu
    go AssetReport alt+i
    keys ctrl+0 ctrl+Next
    shot asset-report-whole-page
    print_all
    printed 2 1 1 "Asset Report" "Total Pages: 2" "Spanner 11" "\$1,080.00" "chipped near the hinge"
    save_as "$Pictures/asset-report.csv"
    grep -q 'Indoor,Attic,Art,Spanner 2,1931,.*,1080.00,None' "$Pictures/asset-report.csv" || fail "another table"
    report_saved AssetReport asset-report-saved "Page: 2" "Spanner 11"
}

page_of_the_help() {
    step "the page of the help about it"
    keys F1
    until_true "the page about the menu" has_title "Print Assets - Kestrill Help"
    print_dialogue
    keys Return
    until_true "the printed page" test -s "$Printed.copies"
    holds "$Printed" "Print Assets" "No Assets Found To Print!"
    rm "$Printed.copies"
    keys Escape
}

some_pages_and_the_other_reports() {
    step "two copies of two pages on one sheet, of a report on a thousand assets"
    front frmPrint
    go AssetReport alt+a
    print_dialogue
    wait_still
    keys_seen alt+o
    keys Tab Tab Tab Tab Down Down # the third kind of range
    texts '' 2-3 '' 2
    shot print-dialogue
    keys_seen alt+r
    keys shift+Tab shift+Tab shift+Tab shift+Tab Down Return
    until_true "the dialogue to print again" has_title Print
    keys Return
    printed 2 2 2 "Page: 2" "Page: 3" "Spanner 9"
    go frmPrint Escape
    step "the cover sheet and the form"
    keys alt+s
    report_saved CoverSheet cover-sheet "Fairbanks" "Tidewater" "\$7,834.29"
    front frmPrint
    keys alt+f
    report_saved FillOutForm form "Year Asset Was Made =>" "(Select One)"
}

closed_meanwhile() {
    step "closed while a report is open"
    front frmPrint
    go AssetReport alt+o
    front frmPrint
    go frmMain alt+c
    leave print-exit
}

household printing "update Personal_Info set [Last] = 'Fairbanks', [Policy Company] = 'Tidewater', [AssetValue] = 78342900;
    $(assets 1000 "case when i = 1 then 'Outdoor' when i < 12 then 'Indoor' else 'Mobile' end, 'Attic', 'Art', 'Spanner ' || i,
        '1931', 'A', 'B', i, '1/2/2020', '\$1,080.00', 'No', 'None',
        case i when 2 then 'None' else 'The veneer of the right door is chipped near the hinge.' end, 'New'")"
start_print_service
start_at_menu
an_area
page_of_the_help
some_pages_and_the_other_reports
closed_meanwhile
unset CUPS_SERVER
