# SPDX-License-Identifier: GPL-3.0-or-later
# The same by Wayland: a compositor in a window of the virtual display, which takes its keys from there.

weston --backend=x11-backend.so --use-pixman --no-config --socket=kestrill --width=1280 --height=1024 \
    >"$Place/weston.log" 2>&1 &
Compositor=$!
until_true "the compositor" test -S "$XDG_RUNTIME_DIR/kestrill"
export WAYLAND_DISPLAY=kestrill QT_QPA_PLATFORM=wayland
# shellcheck source=tests/end_to_end/by_keyboard.sh
. "$Here/by_keyboard.sh"
unset WAYLAND_DISPLAY
export QT_QPA_PLATFORM=xcb
kill "$Compositor"
