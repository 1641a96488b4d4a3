#!/usr/bin/env bash
# The tests of real windows on a real display, of two monitors side by side.
# Usage: on_screen.sh TEST_PROGRAM [ARGUMENT...]
# shellcheck source-path=SCRIPTDIR

SCREEN_SIZE=2560x960
# shellcheck source=screen.sh
. "$(dirname "$0")/screen.sh"

[ "$WINDOW_MANAGER" = openbox ] || start_bus
start_screen
xrandr --setmonitor sinistro 1280/320x960/240+0+0 screen
xrandr --setmonitor destro 1280/320x960/240+1280+0 none
PIXANO_ON_SCREEN=1 "$@"
