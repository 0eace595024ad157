# SPDX-License-Identifier: GPL-3.0-or-later
# A user at the built program: a display of its own, real keys and mouse, and a second program that reads the files.
# Nothing waits for a fixed time: each wait polls for what it needs and fails at its deadline.

readonly Key=R2916mTq47DxWuHzEoN
readonly Patience=15 # seconds for anything to happen

fail() {
    echo "FAILED: $*" >&2
    picture "$Scenario-failed" 100% 2>/dev/null && echo "The screen at that moment: $Pictures/$Scenario-failed.png" >&2
    [ ! -s "$Log" ] || { echo "What the program printed:" && tail -n 20 "$Log"; } >&2
    exit 1
}

step() { printf '%4d s  %s\n' "$SECONDS" "$*"; }

# until_true WHAT COMMAND...: polls the command until it succeeds.
until_true() {
    local what=$1 deadline=$((SECONDS + Patience))
    shift
    until "$@"; do
        [ "$SECONDS" -lt "$deadline" ] || fail "waited $Patience s in vain for: $what"
        sleep 0.03
    done
}

# ---- the place: a home, a display, a window manager

make_place() {
    Place=$(mktemp -d)
    Log=$Place/program.log
    export XDG_RUNTIME_DIR=$Place/runtime TZ=UTC LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb
    export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
    unset XDG_DATA_HOME WAYLAND_DISPLAY QT_SCALE_FACTOR QT_STYLE_OVERRIDE
    mkdir -m 700 "$XDG_RUNTIME_DIR"
    use_home "$Place/home"
    open_display
    open_bus
}

use_home() {
    export HOME=$1
    Database=$HOME/.local/share/KTL/C_db/KTL.db
    Backup=$HOME/Backup/KTL.db
    mkdir -p "$HOME"
}

# household NAME [STATEMENTS]: a home with a household that has been introduced, and what else the statements put there.
household() {
    use_home "$Place/$1"
    lay_database
    change "update Personal_Info set [Introduced] = '1'; ${2:-}"
}

# assets COUNT COLUMNS: the statement that adds assets without a warranty, with these columns from the area to how asset i
# was purchased.
assets() {
    printf "with recursive n(i) as (select 1 union all select i + 1 from n where i < %d)
        insert into Inventory select null, %s%s from n;" "$1" "$2" "$(printf ", 'None'%.0s" {1..13})"
}

open_display() {
    # Any number: a server of another list of processes looks dead to one that searches for the next.
    Xvfb ":$((RANDOM + 100))" -displayfd 3 -screen 0 "${KESTRILL_DISPLAY:-1024x768}x24" -wr -noreset -nolisten tcp -fbdir "$Place" \
        3>"$Place/display" 2>"$Place/xvfb.log" &
    Server=$!
    until_true "the virtual display" test -s "$Place/display"
    DISPLAY=:$(cat "$Place/display")
    export DISPLAY
    openbox --config-file "$Here/openbox.xml" 2>"$Place/openbox.log" &
    until_true "the window manager" manager_is_there
}

# A session bus, and on it the one of assistive tools.
open_bus() {
    dbus-daemon --session --nofork --nosyslog --print-address=3 3>"$Place/bus" >"$Place/bus.log" 2>&1 &
    until_true "the session bus" test -s "$Place/bus"
    DBUS_SESSION_BUS_ADDRESS=$(cat "$Place/bus")
    export DBUS_SESSION_BUS_ADDRESS
    heard_in_front >/dev/null || true # nothing yet
}

manager_is_there() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }

leave_place() {
    # shellcheck disable=SC2046 # one number for each
    kill -9 $(jobs -p | grep -vx "${Server:-}") 2>/dev/null || true
    kill "${Server:-}" 2>/dev/null || true # which leaves no files of its own
    wait 2>/dev/null || true
    rm -rf "$Place"
}

# ---- the program

start() {
    "$1" >>"$Log" 2>&1 &
    Program=$!
}

# The program of the build, whose database has been laid, or the installed one.
start_program() {
    local program=$Build/bin/Kestrill
    [ "$Build" != /usr ] || program=kestrill
    start "$program"
}

lay_database() { [ "$Build" = /usr ] || "$Here/../../scripts/lay-database" "$Build/data/KTL.db"; }

start_at_menu() {
    start_program
    wait_screen frmMain
}

tell_to_end() {
    kill -TERM "$Program"
    ends_with 0
}

kill_program() {
    kill -9 "$Program"
    ends_with 137
    same "$(sql "$Database" "pragma integrity_check")" ok "the database is damaged"
}

# leave NAME: the program from its menu, by the question whose picture bears that name.
leave() {
    keys alt+x
    answer "$1" Return
    ends_with 0
}

has_ended() { ! kill -0 "$1" 2>/dev/null; }

# ends_with STATUS [PROCESS]
ends_with() {
    local wanted=$1 process=${2:-$Program} status=0
    until_true "the end of the program" has_ended "$process"
    wait "$process" || status=$?
    [ "$status" -eq "$wanted" ] || fail "the program ended with status $status, not $wanted"
}

# ---- windows

active_window() { xprop -root _NET_ACTIVE_WINDOW 2>/dev/null | sed -n 's/.*# \(0x[0-9a-f]*\).*/\1/p'; }

role_of() { xprop -id "$1" WM_WINDOW_ROLE 2>/dev/null | sed -n 's/.*"\(.*\)"/\1/p'; }

# The name of the screen in front; "MsgBox" for a message box.
screen_in_front() { role_of "$(active_window)"; }

is_in_front() { [ "$(screen_in_front)" = "$1" ]; }

wait_screen() { until_true "the screen $1 in front" is_in_front "$1"; }

windows() { xdotool search --onlyvisible --class Kestrill 2>/dev/null || true; }

# rectangle_of WINDOW: "left top right bottom" without its frame
rectangle_of() {
    xwininfo -id "$1" 2>/dev/null | awk '
        /Absolute upper-left X/ { x = $4 } /Absolute upper-left Y/ { y = $4 }
        /Width:/ { w = $2 } /Height:/ { h = $2 } END { if (w) print x, y, x + w, y + h }'
}

# shot NAME: a picture of all that the program shows, with its title bar and a margin, once it stands still; and what a
# screen reader finds there.
shot() {
    hear
    Shots=$((Shots + 1))
    wait_still
    picture "$Scenario-$(printf '%02d' "$Shots")-$1" "$(for window in $(windows); do rectangle_of "$window"; done | awk '
        NR == 1 || $1 < x { x = $1 } NR == 1 || $2 < y { y = $2 } $3 > r { r = $3 } $4 > b { b = $4 }
        END { if (NR) printf "%dx%d+%d+%d", r - x + 16, b - y + 38, x - 8, y - 30; else print "100%" }')"
}

# picture NAME PART: of the display, which keeps its dots in a file.
picture() { convert "xwd:$Place/Xvfb_screen0" -crop "$2" +repage "$Pictures/$1.png"; }

fingerprint() { md5sum "$Place/Xvfb_screen0"; }

has_changed() { [ "$(fingerprint)" != "$1" ]; }

# For a tenth of a second, within which the program paints what it has begun.
is_still() {
    local before
    before=$(fingerprint)
    sleep 0.1
    ! has_changed "$before"
}

wait_still() { until_true "the display to stand still" is_still; }

# ---- ears

heard_in_front() { "$Here/screen_reader.py" front 2>/dev/null; }

# shellcheck disable=SC2053 # a pattern
is_heard_in_front() { [[ $(heard_in_front) == $1 ]]; }

# on_heard PATTERN [KEYS...]: where the display tells nothing of its windows, a screen is known by the name that is read out.
on_heard() {
    until_true "the window \"$1\" in front" is_heard_in_front "$1"
    [ $# -eq 1 ] || keys "${@:2}"
}

# What a screen reader finds of each kind of window, the first time that one is in front; not of those that close by
# themselves.
hear() {
    local kind
    kind=$(screen_in_front)
    [[ $kind && $kind != frmBW_Splash && $kind != frmExit ]] || return 0
    grep -qsx "== $kind" "$Pictures/heard.txt" && return
    printf '== %s\n' "$kind" >>"$Pictures/heard.txt"
    until_true "$kind on the accessibility bus" is_heard_in_front "?*"
    "$Here/screen_reader.py" walk | told_of "$kind" >>"$Pictures/heard.txt" || fail "a screen reader can't use $kind"
}

# The windows of reports differ in their names alone.
told_of() { case $1 in CoverSheet | FillOutForm) sed -n 1p ;; *) cat ;; esac }

# see SCREEN NAME: waits for a screen and takes its picture.
see() {
    wait_screen "$1"
    shot "$2"
}

# ---- hands

keys() { xdotool key --delay 15 "$@"; }

# keys_seen KEYS...: and waits until the display has answered and stands still, as one does who looks at a list.
keys_seen() {
    local before
    before=$(fingerprint)
    keys "$@"
    until_true "an answer to $*" has_changed "$before"
    wait_still
}

text() { xdotool type --delay 15 "$1"; }

# texts TEXT...: types into the boxes that follow each other.
texts() { text "$(printf '%s\t' "${@:1:$#-1}")${*: -1}"; }

# go SCREEN KEYS...: presses keys that lead to a screen.
go() {
    keys "${@:2}"
    wait_screen "$1"
}

click_at() { xdotool mousemove "$1" "$2" click 1; }

# find SCREEN CONTROL: puts the place on the display, of what is read out by that name, into X, Y, W, H.
find() {
    wait_screen "$1"
    until_true "\"$2\" on $1" is_placed "$2"
    read -r X Y W H <"$Place/place"
}

is_placed() { "$Here/screen_reader.py" place "$1" >"$Place/place" 2>/dev/null; }

click() {
    find "$1" "$2"
    click_at $((X + W / 2)) $((Y + H / 2))
}

# enter SCREEN CONTROL TEXT: clicks a box and types.
enter() {
    click "$1" "$2"
    text "$3"
}

# answer NAME KEYS...: takes a picture of the message box in front and answers it.
answer() {
    local window
    wait_screen MsgBox
    window=$(active_window)
    shot "$1"
    keys "${@:2}"
    until_true "the message box to close" is_gone "$window"
}

is_gone() { ! xwininfo -id "$1" 2>/dev/null | grep -q IsViewable; }

# unfold SCREEN CONTROL: opens the list of a box with the mouse.
unfold() {
    find "$1" "$2"
    click_at $((X + W - H / 2)) $((Y + H / 2))
    until_true "the list of $2" open_list
}

# pick SCREEN CONTROL PICTURE ROW [ROWS]: by the mouse alone; rows count from 1, and 16 are in sight.
pick() {
    local list left top bottom
    unfold "$1" "$2"
    list=$(open_list_window)
    shot "$3"
    read -r left top _ bottom <<<"$(rectangle_of "$list")"
    click_at $((left + 30)) $((top + 1 + (bottom - top - 2) * (2 * $4 - 1) / (2 * ${5:-16})))
    until_true "the list of $2 to close" is_gone "$list"
}

# A list has no frame; nor has a tool tip, which says what it is.
open_list_window() {
    local window
    for window in $(windows); do
        if xwininfo -id "$window" | grep -q 'Override Redirect State: yes' &&
            ! xprop -id "$window" _NET_WM_WINDOW_TYPE | grep -q TOOLTIP; then
            echo "$window"
        fi
    done
}

open_list() { [ -n "$(open_list_window)" ]; }
no_list() { ! open_list; }

# The personal information of a first start, from its first box on.
type_household() {
    # State and phones move on by themselves when they are full.
    texts Ann Q Fairbanks '12 Orchard Lane' Albany 'ny12205-ab' '518555010151855501025185550103ann@home.example'
}

# ---- reports

# front ROLE: puts the window of that role in front, as a click on its title bar does.
front() {
    local window
    for window in $(windows); do
        [ "$(role_of "$window")" != "$1" ] || xdotool windowactivate "$window"
    done
    wait_screen "$1"
}

has_title() { [ "$(xdotool getactivewindow getwindowname 2>/dev/null)" = "$1" ]; }

# save_as FILE: by the window of the report in front.
save_as() {
    local report
    report=$(screen_in_front)
    keys ctrl+s
    until_true "the dialogue to save" has_title "Save Report As"
    keys ctrl+a
    text "$1"
    keys Return
    until_true "$1" test -s "$1"
    wait_screen "$report"
}

# holds FILE TEXT...: what another program reads in it.
holds() {
    local file=$1 read wanted
    read=$(pdftotext -layout "$file" - | tr -s ' \n' ' ')
    for wanted in "${@:2}"; do
        [[ $read == *"$wanted"* ]] || fail "$file does not hold \"$wanted\": $read"
    done
}

# report_saved REPORT NAME TEXT...: the report in front, saved beside the pictures, and closed.
report_saved() {
    see "$1" "$2"
    save_as "$Pictures/$2.pdf"
    holds "$Pictures/$2.pdf" "${@:3}"
    keys Escape
    until_true "the report to close" has_left "$1"
}

has_left() { ! is_in_front "$1"; }

# ---- the second program

# Version 4 has to be told the form of the file, and answers each pragma.
sqlcipher_with_key() {
    sqlcipher -batch -cmd '.output /dev/null' -cmd "PRAGMA key = '$Key'" -cmd 'PRAGMA cipher_compatibility = 3' \
        -cmd '.output stdout' "$@" 2>&1
}

# sql FILE STATEMENT: of a copy, since the program keeps its database to itself while it runs; with its journal, if it has
# one.
sql() {
    rm -f "$Place"/copy.db*
    cp "$1" "$Place/copy.db"
    cp "$1-journal" "$Place/copy.db-journal" 2>/dev/null || true
    sqlcipher_with_key "$Place/copy.db" "$2"
}

# change STATEMENTS: of the database, while the program doesn't run.
change() { sqlcipher_with_key "$Database" "$1"; }

dump() { sql "$1" .dump; }

# expect STATEMENT ANSWER: what the database answers, at once or soon.
expect() {
    Answer=
    local deadline=$((SECONDS + 5))
    until Answer=$(sql "$Database" "$1") && [ "$Answer" = "$2" ]; do
        [ "$SECONDS" -lt "$deadline" ] || fail "$1"$'\n'"    gives     $Answer"$'\n'"    expected  $2"
        sleep 0.05
    done
}

same() { [ "$1" = "$2" ] || fail "$3"; }

expect_mode() { same "$(stat -c %a "$1")" "$2" "$1 has mode $(stat -c %a "$1"), not $2"; }
