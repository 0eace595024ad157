# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2013,SC2034,SC2154 # the files of this folder share their variables
# What a screen reader has found of the windows that the scenarios have shown, against what it found when somebody last
# looked it through. A window that is not in the kept list is left to the one who adds it.

step "what a screen reader finds"
for kind in $(sed -n 's/^== //p' "$Here/heard.txt"); do
    for list in "$Here" "$Pictures"; do
        awk -v kind="== $kind" '/^== / { inside = $0 == kind } inside' "$list/heard.txt"
        echo "----"
    done >"$Place/heard"
    awk -v RS='----\n' 'NR == 1 { kept = $0 } NR == 2 && $0 != kept { exit 1 }' "$Place/heard" ||
        fail "$kind is read out differently; look $Pictures/heard.txt through and copy it. Kept, and now:"$'\n'"$(cat "$Place/heard")"
done
