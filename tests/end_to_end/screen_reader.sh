# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2034,SC2154 # the files of this folder share their variables
# What a screen reader has found of all windows that the scenarios have shown, against what it found when somebody last
# looked it through.

step "what a screen reader finds"
diff -u "$Here/heard.txt" "$Pictures/heard.txt" >"$Place/heard.diff" ||
    fail "screens are read out differently: look it through and copy $Pictures/heard.txt"$'\n'"$(cat "$Place/heard.diff")"
