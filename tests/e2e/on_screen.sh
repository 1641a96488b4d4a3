#!/usr/bin/env bash
# The tests of real windows on a real display, of two monitors side by side, neither of them at the upper edge; of one
# of $SCREEN_SIZE where that is given.
# Usage: on_screen.sh TEST_PROGRAM [ARGUMENT...]
# shellcheck source-path=SCRIPTDIR

one_monitor=${SCREEN_SIZE:+yes}
SCREEN_SIZE=${SCREEN_SIZE:-2560x1010}
# shellcheck source=screen.sh
. "$(dirname "$0")/screen.sh"

[ "$WINDOW_MANAGER" = openbox ] || start_bus
start_screen
if [ -z "$one_monitor" ]; then
    xrandr --setmonitor sinistro 1280/320x960/240+0+50 screen
    xrandr --setmonitor destro 1280/320x860/215+1280+100 none
fi
PIXANO_ON_SCREEN=1 "$@"
