#!/usr/bin/env bash
# A whole visit on a real display: open a photograph, turn it, go back and forth, save, leave.
# Usage: journey.sh PIXANO PIXANO_BATCH PHOTOGRAPH
# shellcheck source-path=SCRIPTDIR

pixano=$1
batch=$2
photo=$3
# shellcheck source=screen.sh
. "$(dirname "$0")/screen.sh"

read -r width height < <(identify -format '%w %h\n' "$photo")
size=${width}x${height}
cp "$photo" "$sandbox/foto.jpg"
saved=$sandbox/risultato.bmp

start_screen
start_program "$pixano"

# The start-up picture lies in the middle of the screen; a click on it starts the work.
expect_title "Pixano 2.3"
expect_opening_picture
shot 1-apertura
more_windows_than 1 || fail "the start-up picture goes by itself"
xdotool mousemove "$((${SCREEN_SIZE%x*} / 2))" "$((${SCREEN_SIZE#*x} / 2))" click 1
wait_for is_active "Pixano 2.3" || fail "the start-up picture does not go at a click"

# "&File" > "&Apri"
focus "Pixano 2.3"
keys alt+f
wait_for more_windows_than 1 || fail "no menu"
shot 2-menu
keys a
wait_for is_active "Apri" || fail "no open dialog, but $(active_title)"
xdotool type --delay 5 "$sandbox/foto.jpg"
shot 3-apri
keys Return
expect_title "foto.jpg   $size"
expect_title "foto.jpg  (${width} x ${height}) - 100%"
shot 4-aperta

# "I&nversione" > "Capovolgi" and "Specchio"
focus "Pixano 2.3"
menus alt+f n
keys Down Return
expect_title "Capovolgi   $size"
focus "Pixano 2.3"
menus alt+f n
keys Return
expect_title "Specchio   $size"
wait_for test ! -e "$sandbox/folder/elab.ser" || fail "the pixel working file stays"
shot 5-specchio

# Back, forward, back to the beginning, forward again.
focus "Pixano 2.3"
keys alt+a
expect_title "Specchio   $size"
focus "Pixano 2.3"
keys alt+r
focus "Pixano 2.3"
keys alt+o
expect_title "foto.jpg   $size"
focus "Pixano 2.3"
keys alt+r
expect_title "Specchio   $size"

# "&Salva File"
focus "Pixano 2.3"
menus alt+f
keys s
wait_for is_active "Salva con nome" || fail "no save dialog, but $(active_title)"
xdotool type --delay 5 "$saved"
shot 6-salva
keys Return
wait_for test -s "$saved" || fail "nothing was saved"

"$batch" -e Capovolgi -e Specchio -o "$sandbox/atteso.bmp" "$photo" >/dev/null
cmp "$saved" "$sandbox/atteso.bmp" || fail "the saved pixels differ from the batch tool's"
# The same picture by other means: upside down, one column to the left, white at the right edge.
convert "$photo" -flip -roll -1+0 -fill white -draw "rectangle $((width - 1)),0 $((width - 1)),$height" \
    -depth 8 "rgb:$sandbox/atteso.rgb"
convert "$saved" -depth 8 "rgb:$sandbox/salvato.rgb"
cmp "$sandbox/salvato.rgb" "$sandbox/atteso.rgb" || fail "the saved pixels are not the expected ones"
cmp "$photo" "$sandbox/foto.jpg" || fail "the opened file was changed"

# An unsaved change, and the question about it: yes, and the file saved before holds it.
focus "Pixano 2.3"
menus alt+f n
keys Return
expect_title "Specchio   $size"
test -e "$XDG_DATA_HOME/pixano/temp.bml" || fail "no snapshot for undo"
focus "Pixano 2.3"
menus alt+f
keys e
wait_for is_active "Avviso!" || fail "no question about the unsaved changes, but $(active_title)"
shot 7-domanda
keys Return
ended=0
wait "$program" || ended=$?
program=
[ "$ended" -eq 0 ] || fail "the program ended with status $ended: $(cat "$sandbox/errors")"
"$batch" -e Capovolgi -e Specchio -e Specchio -o "$sandbox/atteso.bmp" "$photo" >/dev/null
cmp "$saved" "$sandbox/atteso.bmp" || fail "the answer yes did not save the last effect"
[ -z "$(ls -A "$sandbox/folder" | grep -v '^percors.dat$')" ] || fail "left behind: $(ls -A "$sandbox/folder")"
[ ! -e "$XDG_DATA_HOME/pixano/temp.bml" ] && [ ! -e "$XDG_DATA_HOME/pixano/temp2.bml" ] ||
    fail "snapshots left behind"
echo "The journey went well; its pictures are in $EVIDENCE"
