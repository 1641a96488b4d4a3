#!/usr/bin/env bash
# The real program on a real display: keys and clicks rain on it while it works, then the display dies
# under it. It ends, and the next start, on another display, offers the work: display_dies.sh PIXANO
# PIXANO-BATCH
set -euo pipefail

# shellcheck source=tests/e2e/screen.sh
source "$(dirname -- "${BASH_SOURCE[0]}")/../e2e/screen.sh"

pixano=$1
batch=$2
width=1600
height=1200
size=${width}x${height}
convert -size "$size" plasma:tomato-steelblue -quality 90 "$sandbox/foto.jpg"

"$batch" -e Specchio -o "$sandbox/atteso.bmp" "$sandbox/foto.jpg" >/dev/null

start_screen
start_program "$pixano" "$sandbox/foto.jpg"
expect_opening_picture
keys Return
expect_title "foto.jpg   $size"

# "I&nversione" > "Specchio", and at once whatever a nervous user presses.
focus "Pixano 2.3"
menus alt+f n
keys Return
for _ in $(seq 15); do
    xdotool key --delay 5 ctrl+z ctrl+y Escape click 1
done
expect_title "Specchio   $size"
kill -0 "$program" || fail "the program is gone"
wait_for cmp "$sandbox/folder/elabor.tmp" "$sandbox/atteso.bmp" || fail "not one effect, but something else"

kill -KILL "$screen"
ended=0
wait "$program" || ended=$?
program=
[ "$ended" -ne 0 ] || fail "the program ended as if nothing had happened"
test -s "$XDG_DATA_HOME/pixano/recupero.txt" || fail "the work is not noted"
wait "$manager" 2>/dev/null || true

start_screen
start_program "$pixano"
expect_opening_picture
keys Return
wait_for is_active "Avviso!" || fail "no offer, but $(active_title)"
shot display-1-avviso
keys Return
expect_title "foto.jpg   $size"
cmp "$sandbox/folder/elabor.tmp" "$sandbox/atteso.bmp" || fail "another picture was brought back"
shot display-2-recuperata

# Logged out: the same again.
kill -TERM "$program"
wait "$program" || true
program=
start_program "$pixano"
expect_opening_picture
keys Return
wait_for is_active "Avviso!" || fail "no offer after the logout, but $(active_title)"
kill -HUP "$program"
wait "$program" || true
program=
echo "The display died, and the work lived"
