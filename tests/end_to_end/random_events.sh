# SPDX-License-Identifier: GPL-3.0-or-later
# Random events, faster than the programs answer. RANDOM_EVENTS holds options of random_events/random_events.py.

step "a household, and a home in which nothing has been entered"
household furnished "update Personal_Info set [First] = 'Ann', [Last] = 'Fairbanks', [Policy Company] = 'Tidewater',
        [Policy Expiration] = '$(date -d '10 days' +%-m/%-d/%Y)', [AssetValue] = 78342900;
    $(assets 60 "case i % 3 when 0 then 'Outdoor' when 1 then 'Indoor' else 'Mobile' end, 'Attic', 'Art', 'Clock ' || i, '1931',
        'A', 'B', i, '1/2/2020', '\$1,080.00', 'No', 'None', 'None', 'New'")
    with recursive n(i) as (select 1 union all select i + 1 from n where i < 60)
        insert into Bank_Info select i, 'Bank ' || i, 'None', '518', '555', '0101', 'A-' || i, 'None', '\$1,234.50', '1/1/2026',
        'Checking', 'None', 'None' from n"
use_home "$Place/new"
lay_database

for home in furnished new; do
    for ((row = 1; row <= 400; row++)); do
        echo "Indoor,Attic,Art,Clock $((row * 3)),B,$row/7/2006,$((row % 7 * 100)).5,\"Colour: red, $row\""
    done | sed '1i Area,Room,Category,Item,Model,Bought,Cost,Notes' >"$Place/$home/list.csv"
done

# shellcheck source=tests/end_to_end/print_service.sh
. "$Here/print_service.sh"
start_print_service

step "random events"
mkdir "$Place/programs"
ln -s "$Build/bin/Kestrill" "$Place/programs/Kestrill"
for tool in kestrill-restore kestrill-export kestrill-import; do
    ln -s "$Build/bin/kestrill-tools" "$Place/programs/$tool"
done
export ASAN_OPTIONS=exitcode=99 UBSAN_OPTIONS=print_stacktrace=1
# shellcheck disable=SC2086 # several words
"$Here/random_events/random_events.py" --folder "$Place" --pictures "$Pictures" ${RANDOM_EVENTS:-} || exit 1
