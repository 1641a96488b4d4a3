#!/usr/bin/env bash
# A session of Wayland, nested in a virtual screen: where there is X too the program takes that, and
# where there is none its menus can be reached all the same.
# Usage: wayland.sh PIXANO PHOTOGRAPH
# shellcheck source-path=SCRIPTDIR

pixano=$1
photo=$2
# shellcheck source=screen.sh
. "$(dirname "$0")/screen.sh"

# Keeps the keys down until the menu is asked for, as a hand does: the desktop refuses a menu to keys that are up again.
open_menu() {
    local asked
    asked=$(grep -c get_popup "$sandbox/errors" || true)
    xdotool keydown alt keydown f
    wait_for requested get_popup $((asked + 1)) || fail "no menu opens"
    xdotool keyup f keyup alt
}

# Ends the program by its menu, which the command opens.
leave() {
    local ended=0
    "${@:2}"
    keys e
    wait "$program" || ended=$?
    program=
    [ "$ended" -eq 0 ] || fail "$1: the program ended with status $ended: $(tail -3 "$sandbox/errors")"
}

requested() {
    [ "$(grep -c "$1" "$sandbox/errors")" -ge "$2" ]
}

start_screen
unset QT_QPA_PLATFORM
printf '[shell]\npanel-position=none\nlocking=false\n' >"$sandbox/weston.ini"
weston --config="$sandbox/weston.ini" --backend=x11-backend.so --width=1200 --height=880 \
    --socket=pixano-wayland --idle-time=0 >"$sandbox/weston.log" 2>&1 &
bus=$! # taken down at the end like a bus
wait_for test -S "$XDG_RUNTIME_DIR/pixano-wayland" || fail "weston does not start"
export WAYLAND_DISPLAY=pixano-wayland

# Both: the windows are windows of X, in their places.
start_program "$pixano"
expect_title "Pixano 2.3"
wait_for is_active "Pixano 2.3" || keys Return
wait_for is_active "Pixano 2.3" || fail "no main window on X, but $(active_title)"
leave "with X" keys alt+f

# Wayland alone. What is asked of the desktop is told by the toolkit.
cd "$sandbox/folder"
env -u DISPLAY WAYLAND_DEBUG=1 "$pixano" "$photo" 2>"$sandbox/errors" &
program=$!
wait_for requested 'set_title("Pixano 2.3")' 1 || fail "no main window on Wayland"
wait_for requested 'wl_keyboard.*enter' 2 || fail "no start-up picture"
focus "Weston Compositor - screen0"
sleep 1
keys Return
wait_for requested 'set_title("Strumenti")' 1 || fail "no palette on Wayland"
# Main window and palette belong to the canvas, and lie above it.
wait_for requested 'xdg_toplevel.*set_parent(xdg_toplevel' 2 || fail "the menus do not belong to the canvas"
title_of() {
    sed -nE "s/.*xdg_toplevel@$1\.set_title\(\"(.*)\"\).*/\1/p" "$sandbox/errors" | tail -1
}
owned=$(sed -nE 's/.*xdg_toplevel@([0-9]+)\.set_parent\(xdg_toplevel@([0-9]+)\).*/\1 \2/p' "$sandbox/errors" | sort -u |
    while read -r child owner; do echo "$(title_of "$child") of $(title_of "$owner")"; done | sort)
canvas="$(basename "$photo")   $(identify -format '%wx%h' "$photo")"
[ "$owned" = "Pixano 2.3 of $canvas"$'\n'"Strumenti of $canvas" ] || fail "these belong to others: $owned"
sleep 1
shot wayland-1
# The palette has the keyboard: the menus open from there.
open_menu
sleep 0.5
shot wayland-2
requested popup_done 1 && fail "the menu does not stay open"
keys Escape Escape
# A second start hands its picture over there too.
convert -size 60x40 xc:red "$sandbox/folder/altra.bmp"
env -u DISPLAY timeout 10 "$pixano" altra.bmp || fail "the second start ended with status $?"
wait_for requested 'set_title("altra.bmp   60x40")' 1 || fail "the running program does not open the second picture"
# The keyboard has to be with a window of the program again before its keys are pressed.
wait_for requested 'set_title("altra.bmp  (60 x 40) - 100%")' 1 || fail "no preview of the second picture"
leave "without X" open_menu
echo "Wayland went well; its pictures are in $EVIDENCE"
