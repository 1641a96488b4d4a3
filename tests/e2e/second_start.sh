#!/usr/bin/env bash
# The program started twice on one data folder, started after it was killed, and started where there
# can be no data folder. Usage: second_start.sh PIXANO PICTURE
# shellcheck source-path=SCRIPTDIR

pixano=$1
picture=$2
# shellcheck source=screen.sh
. "$(dirname "$0")/screen.sh"

# Starts the program once more; it tells something and ends with status 1.
expect_refusal() {
    local second ended=0
    "$pixano" 2>>"$sandbox/errors" &
    second=$!
    wait_for is_active "Attenzione!" || fail "$1: no message, but $(active_title)"
    shot "$2"
    keys Return
    wait "$second" || ended=$?
    [ "$ended" -eq 1 ] || fail "$1: it ended with status $ended"
}

start_screen

# The start-up picture goes at a key; the picture that was named is opened then.
start_program "$pixano" "$picture"
expect_title "Pixano 2.3"
wait_for sh -c '[ "$(xdotool search --onlyvisible --class pixano | wc -l)" -ge 2 ]' ||
    fail "no start-up picture"
sleep 0.5
keys space
expect_title "$(basename "$picture")   $(identify -format '%wx%h' "$picture")"
[ "$(stat -c %a "$XDG_DATA_HOME/pixano")" = 700 ] || fail "others may look into the data folder"

expect_refusal "a second start" secondo-avvio
kill -0 "$program" || fail "the second start ended the first"
titled "$(basename "$picture")   $(identify -format '%wx%h' "$picture")" ||
    fail "the second start changed the first"

# A program that was killed does not stand in the way of the next one.
kill -KILL "$program"
wait "$program" 2>/dev/null || true
start_program "$pixano"
expect_title "Pixano 2.3"
wait_for sh -c '[ "$(xdotool search --onlyvisible --class pixano | wc -l)" -ge 2 ]' ||
    fail "a killed program keeps the next one from starting"
kill "$program"
wait "$program" 2>/dev/null || true
program=

# A file where the data folder should be.
rm -rf "$XDG_DATA_HOME/pixano"
: >"$XDG_DATA_HOME/pixano"
expect_refusal "a start without a data folder" senza-cartella
echo "Second starts went well"
