# A virtual screen with a window manager, and what a person does on it. Sourced by the journeys.
#
# Starts Xvfb and openbox, or $WINDOW_MANAGER, on a free display, makes an empty home and working folder, and takes all of it
# down again at the end. On failure a screenshot stays in $EVIDENCE.

set -euo pipefail

# shellcheck source-path=SCRIPTDIR source=../../scripts/imagemagick.bash
. "$(dirname -- "${BASH_SOURCE[0]}")/../../scripts/imagemagick.bash"

EVIDENCE=${EVIDENCE:-$PWD/build/e2e}
SCREEN_SIZE=${SCREEN_SIZE:-1280x960}
WINDOW_MANAGER=${WINDOW_MANAGER:-openbox}

sandbox=$(mktemp -d)
mkdir -p "$EVIDENCE" "$sandbox/folder"
mkdir -m 700 "$sandbox/home"
export HOME=$sandbox/home XDG_DATA_HOME=$sandbox/home/data XDG_RUNTIME_DIR=$sandbox/home
export QT_QPA_PLATFORM=xcb NO_AT_BRIDGE=1
unset QT_SCALE_FACTOR WAYLAND_DISPLAY QT_QPA_PLATFORMTHEME

program=
cleanup() {
    status=$?
    if [ "$status" -ne 0 ] && [ -n "${DISPLAY:-}" ]; then
        import -window root "$EVIDENCE/failure.png" 2>/dev/null &&
            echo "The screen as it was: $EVIDENCE/failure.png" >&2
    fi
    [ -z "$program" ] || kill "$program" 2>/dev/null || true
    [ -z "${bus:-}" ] || kill "$bus" 2>/dev/null || true
    [ -z "${manager:-}" ] || kill "$manager" 2>/dev/null || true
    [ -z "${screen:-}" ] || kill "$screen" 2>/dev/null || true
    wait 2>/dev/null || true
    rm -rf "$sandbox"
    exit "$status"
}
trap cleanup EXIT

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

# Waits up to 20 seconds until the command succeeds.
wait_for() {
    local _
    for _ in $(seq "${patience:-200}"); do
        "$@" >/dev/null 2>&1 && return 0
        sleep 0.1
    done
    return 1
}

# xprop itself succeeds without the property too.
manages_windows() {
    xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'
}

# Xvfb may tell its number a moment before anyone can connect, and openbox tries only once.
start_screen() {
    local number=$sandbox/display patience=80 _
    for _ in 1 2 3; do
        Xvfb -displayfd 3 -screen 0 "${SCREEN_SIZE}x24" -nolisten tcp 3>"$number" 2>/dev/null &
        screen=$!
        wait_for test -s "$number" || fail "Xvfb does not start"
        DISPLAY=:$(cat "$number")
        export DISPLAY
        if wait_for xprop -root; then
            $WINDOW_MANAGER >/dev/null 2>&1 &
            manager=$!
            if wait_for manages_windows; then return 0; fi
            kill "$manager" 2>/dev/null || true
            wait "$manager" || true
        fi
        kill "$screen" 2>/dev/null || true
        # Not for all: a session bus goes on.
        wait "$screen" || true
        : >"$number"
    done
    fail "no screen with $WINDOW_MANAGER on it can be started"
}

# Starts a session bus of its own, for assistive tools; their part of it starts when it is asked for.
start_bus() {
    local address=$sandbox/bus
    dbus-daemon --session --nofork --print-address=3 3>"$address" >/dev/null 2>&1 &
    bus=$!
    wait_for test -s "$address" || fail "no session bus"
    DBUS_SESSION_BUS_ADDRESS=$(cat "$address")
    export DBUS_SESSION_BUS_ADDRESS
}

# Starts the program in the working folder.
start_program() {
    cd "$sandbox/folder"
    "$@" 2>"$sandbox/errors" &
    program=$!
}

shot() {
    import -window root "$EVIDENCE/$1.png"
}

# The visible window whose title is exactly this text. Two programs are run, however many windows there are.
window_titled() {
    local ids titles i
    mapfile -t ids < <(xdotool search --onlyvisible --name '.*' 2>/dev/null)
    mapfile -t titles < <(printf 'getwindowname %s ' "${ids[@]}" | xargs xdotool 2>/dev/null)
    for i in "${!ids[@]}"; do
        if [ "${titles[i]:-}" = "$1" ]; then
            echo "${ids[i]}"
            return 0
        fi
    done
    return 1
}

titled() {
    window_titled "$1" >/dev/null
}

expect_title() {
    wait_for titled "$1" || fail "no window is titled \"$1\""
}

# Waits for the canvas of that title and its palette, and for the focus to settle: the main window keeps it for 0.3
# seconds after an opening, faster than any hand.
expect_opened() {
    expect_title "$1"
    expect_title "Strumenti"
    sleep 0.4
}

# Brings the window of that title to the front and gives it the keyboard.
focus() {
    expect_title "$1"
    xdotool windowactivate --sync "$(window_titled "$1")"
}

active_title() {
    xdotool getactivewindow getwindowname 2>/dev/null
}

is_active() {
    [ "$(active_title)" = "$1" ]
}

# One after the other, as the program takes them: a menu that a key opens has the next one.
keys() {
    xdotool key --clearmodifiers --delay 1 "$@"
}

# Opens menus by their keys, each when the one before it is there: keys that come sooner may be lost, or taken by another.
menus() {
    local key before
    for key in "$@"; do
        before=$(visible_windows)
        keys "$key"
        wait_for more_windows_than "$before" || fail "no menu opens at $key"
    done
}

# The start-up picture is up and has the keyboard. It has no title.
expect_opening_picture() {
    wait_for is_active " " || fail "no start-up picture, but $(active_title)"
}

# More windows are on the screen than that many: a menu, for one.
more_windows_than() {
    [ "$(visible_windows)" -gt "$1" ]
}

visible_windows() {
    xdotool search --onlyvisible --class pixano | wc -l
}
