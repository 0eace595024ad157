# SPDX-License-Identifier: GPL-3.0-or-later
# The same by Wayland, with large text: a compositor in a window of the virtual display, which takes its keys from there.

weston --backend=x11-backend.so --use-pixman --no-config --socket=kestrill --width=1024 --height=768 \
    >"$Place/weston.log" 2>&1 &
until_true "the compositor" test -S "$XDG_RUNTIME_DIR/kestrill"
export WAYLAND_DISPLAY=kestrill QT_QPA_PLATFORM=wayland GSETTINGS_BACKEND=keyfile XDG_CONFIG_HOME=$Place/settings
gsettings set org.gnome.desktop.interface text-scaling-factor 1.5
# shellcheck source=tests/end_to_end/by_keyboard.sh
. "$Here/by_keyboard.sh"

read -r _ _ _ height <"$Place/place"
[ "$height" -gt 35 ] || fail "a button is $height pixels high: large text is not taken over" # 31 at 11 points
unset WAYLAND_DISPLAY
export QT_QPA_PLATFORM=xcb
