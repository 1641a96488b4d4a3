#!/usr/bin/env bash
# The program as assistive tools meet it: what it tells of its windows and controls over AT-SPI, what can
# be triggered from there, and the keyboard. Usage: assistive.sh PIXANO PHOTOGRAPH
# shellcheck source-path=SCRIPTDIR

pixano=$1
photo=$2
walk=$(dirname -- "$(readlink -f -- "$0")")/assistive.py
# shellcheck source=screen.sh
. "$(dirname "$0")/screen.sh"

cp "$photo" "$sandbox/foto.jpg"
start_screen
start_bus
# Whoever runs this may have no screen reader running.
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
start_program "$pixano" "$sandbox/foto.jpg"
expect_title "Pixano 2.3"
"$walk" "$(identify -format '%w %h' "$photo")" || fail "see above"
ended=0
wait "$program" || ended=$?
program=
[ "$ended" -eq 0 ] || fail "the program ended with status $ended: $(cat "$sandbox/errors")"
echo "Assistive tools find everything"
