#!/usr/bin/env bash
# The tools palette on a real display, by the keyboard alone: a strength chosen with the slider, the
# preview enlarged and reduced, a mix taken back, the result saved.
# Usage: palette.sh PIXANO PIXANO_BATCH PHOTOGRAPH
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
preview="foto.jpg  (${width} x ${height}) -"

# How many buttons after $1 the button $2 comes, in the order of the tab key.
buttons_between() {
    awk -F '"' -v from="$1" -v to="$2" '/^    \{"/ { ++row } $2 == from { start = row } $2 == to { end = row }
        END { if (!start || !end) exit 1; print end - start }' "$(dirname "$0")/../panels/expected_buttons.h"
}

# Presses a key that many times.
repeat() {
    local pressed
    mapfile -t pressed < <(yes "$1" | head -n "$2")
    keys "${pressed[@]}"
}

start_screen
start_program "$pixano" "$sandbox/foto.jpg"
expect_title "Pixano 2.3"
expect_opening_picture
keys Return
expect_opened "foto.jpg   $size"
expect_title "$preview 100%"

# The palette, with its frame, stands at the top of the screen, 3250 twips (217 pixels) from its right
# edge.
focus "Strumenti"
read -r left _ top _ < <(xprop -id "$(window_titled "Strumenti")" _NET_FRAME_EXTENTS |
    tr -dc '0-9 \n')
place=$(xwininfo -id "$(window_titled "Strumenti")" | awk '/Absolute/ { print $NF }' | paste -sd' ')
[ "$place" = "$((${SCREEN_SIZE%x*} - 217 + left)) $top" ] ||
    fail "the palette stands at $place with a frame of $left and $top"
shot palette-1-aperta

# While the history is off, the keyboard starts at the first reflection.
vetro=SSCommand6
repeat Tab "$(buttons_between SSCommand7 $vetro)"
keys space
wait_for is_active "Vetro" || fail "no slider window, but $(active_title)"
shot palette-2-cursore
# 5000 at first, two arrows and a page more.
keys Right Right Prior
shot palette-3-spostato
keys Return
expect_title "Vetro   $size"
expect_title "$preview 100%"
[ "$(sed -n 3p "$sandbox/folder/valori.tip")" = $'6200\r' ] || fail "the strength was not kept"
shot palette-4-vetro

# The two picture buttons are the last ones.
focus "Strumenti"
repeat Tab "$(buttons_between $vetro Command1)"
keys space
expect_title "$preview 130%"
shot palette-5-ingrandita
focus "Strumenti"
keys Tab
for scale in 100 70 40 40; do
    keys space
    expect_title "$preview $scale%"
done
shot palette-6-ridotta

mix=SSCommand19
focus "Strumenti"
repeat shift+Tab "$(buttons_between $mix Command2)"
keys space
expect_title "Mix Verticale   $size"
expect_title "$preview 40%"
shot palette-7-mix

# "Annulla", the first button: one less than stand between, as "Ripristina" is off.
[ ! -e "$XDG_DATA_HOME/pixano/temp2.bml" ] || fail "there is a picture to go forward to already"
focus "Strumenti"
repeat shift+Tab "$(($(buttons_between SSCommand15 $mix) - 1))"
keys space
wait_for test -s "$XDG_DATA_HOME/pixano/temp2.bml" || fail "\"Annulla\" does nothing"
shot palette-8-annullata

focus "Pixano 2.3"
menus alt+f
keys s
wait_for is_active "Salva con nome" || fail "no save dialog, but $(active_title)"
xdotool type --delay 5 "$saved"
keys Return
wait_for test -s "$saved" || fail "nothing was saved"
"$batch" -e Vetro=6200 -o "$sandbox/atteso.bmp" "$photo" >/dev/null
cmp "$saved" "$sandbox/atteso.bmp" || fail "the saved pixels differ from the batch tool's"
# What was taken back is the mix of it.
"$batch" -e Vetro=6200 -e "Mix Verticale" -o "$sandbox/mix.bmp" "$photo" >/dev/null
cmp "$XDG_DATA_HOME/pixano/temp2.bml" "$sandbox/mix.bmp" || fail "the mix differs from the batch tool's"

focus "Pixano 2.3"
menus alt+f
keys e
ended=0
wait "$program" || ended=$?
program=
[ "$ended" -eq 0 ] || fail "the program ended with status $ended: $(cat "$sandbox/errors")"
echo "The palette went well; its pictures are in $EVIDENCE"
