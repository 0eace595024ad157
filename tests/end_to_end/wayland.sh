# SPDX-License-Identifier: GPL-3.0-or-later
# The same by Wayland: a compositor in a window of the virtual display, which takes its keys from there.

weston --backend=x11-backend.so --use-pixman --no-config --socket=kestrill --width=1024 --height=768 \
    >"$Place/weston.log" 2>&1 &
Compositor=$!
until_true "the compositor" test -S "$XDG_RUNTIME_DIR/kestrill"
export WAYLAND_DISPLAY=kestrill QT_QPA_PLATFORM=wayland
# shellcheck source=tests/end_to_end/by_keyboard.sh
. "$Here/by_keyboard.sh"

# height_at SCALE: of a button, where the desktop wants texts so much larger.
height_at() {
    gsettings set org.gnome.desktop.interface text-scaling-factor "$1"
    start_program
    on_heard "Welcome To Kestrill Main Menu"
    until_true "the button Exit" is_placed Exit
    read -r _ _ _ H <"$Place/place"
    tell_to_end
}

step "large text on wayland"
export GSETTINGS_BACKEND=keyfile XDG_CONFIG_HOME=$HOME/.config
height_at 1.0
Plain=$H
height_at 1.5
[ "$H" -gt "$Plain" ] || fail "a button of $H pixels: large text is not taken over"
unset WAYLAND_DISPLAY
export QT_QPA_PLATFORM=xcb
kill "$Compositor"
