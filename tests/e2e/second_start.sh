#!/usr/bin/env bash
# The program started twice on one data folder: the second start hands its picture to the first. Then
# one that does not answer, one that was killed, and one without a data folder. Usage: second_start.sh PIXANO PICTURE
# shellcheck source-path=SCRIPTDIR

pixano=$1
picture=$2
size=$(identify -format '%wx%h' "$picture")
# shellcheck source=screen.sh
. "$(dirname "$0")/screen.sh"

# Starts the program once more; it tells something and ends with status 1.
expect_refusal() {
    local second ended=0 started=$SECONDS
    "$pixano" 2>>"$sandbox/errors" &
    second=$!
    wait_for is_active "Attenzione!" || fail "$1: no message, but $(active_title)"
    ((SECONDS - started <= 5)) || fail "$1: the message came late"
    shot "$2"
    keys Return
    wait "$second" || ended=$?
    [ "$ended" -eq 1 ] || fail "$1: it ended with status $ended"
}

start_screen

# The start-up picture goes at a key; the picture that was named is opened then.
start_program "$pixano" "$picture"
expect_title "Pixano 2.3"
expect_opening_picture
keys space
expect_opened "$(basename "$picture")   $size"
[ "$(stat -c %a "$XDG_DATA_HOME/pixano")" = 700 ] || fail "others may look into the data folder"

# Starts the program once more; it ends with status 0, and quickly.
hand_over() {
    timeout 10 "$pixano" "$@" 2>>"$sandbox/errors" || fail "a second start ended with status $?"
}
convert -size 60x40 xc:red "$sandbox/folder/altra figura.bmp"
[ "$(stat -c '%a %F' "$XDG_DATA_HOME/pixano/pixano.socket")" = "600 socket" ] ||
    fail "others may speak to the program"
focus "Strumenti"
hand_over "altra figura.bmp"
expect_title "altra figura.bmp   60x40"
wait_for is_active "Pixano 2.3" || fail "the running program did not come forward, but $(active_title)"

# Work that is not saved is asked for first.
focus "Pixano 2.3"
menus alt+f d
keys Return
expect_title "Doppia Foto Verticale   60x40"
hand_over "$picture"
wait_for is_active "Messaggio!" || fail "nobody asks whether the changes are to be saved, but $(active_title)"
titled "Doppia Foto Verticale   60x40" || fail "another picture was opened before the answer"
keys Tab space
expect_title "$(basename "$picture")   $size"
hand_over "altra figura.bmp"
expect_title "altra figura.bmp   60x40"

# Without a picture it comes forward, even where all its windows are minimised; while it asks, what it asks does.
minimised() {
    xprop -id "$1" WM_STATE | grep -q Iconic
}
brought_back() {
    ! minimised "$1"
}
windows=()
for title in "Pixano 2.3" "altra figura.bmp   60x40" "altra figura.bmp  (60 x 40) - 100%"; do
    windows+=("$(window_titled "$title")")
    xdotool windowminimize "${windows[-1]}"
    wait_for minimised "${windows[-1]}" || fail "$title was not minimised"
done
hand_over
for window in "${windows[@]}"; do
    wait_for brought_back "$window" || fail "window $window stays minimised"
done
wait_for is_active "Pixano 2.3" || fail "the running program did not come forward, but $(active_title)"
menus alt+f
keys a
wait_for is_active "Apri" || fail "no open dialog, but $(active_title)"
hand_over "$picture"
# It hears one after the other: the first has been heard when the second is answered.
hand_over
titled "$(basename "$picture")   $size" &&
    fail "a picture was opened within a command"
is_active "Apri" || fail "the dialog does not come forward, but $(active_title)"
keys Escape
expect_title "$(basename "$picture")   $size"
hand_over manca.bmp
wait_for is_active "Attenzione!" || fail "nobody tells that the picture is missing"
keys Return

# Anything else is not heard; neither is anybody while the program does not answer.
python3 - "$XDG_DATA_HOME/pixano/pixano.socket" <<'END' || fail "it answers to what it should not"
import socket, sys
for message in (b"", b"V ", b"A", b"Arelativa.bmp", b"A/con\0nullo", b"X/tmp", b"A/" + b"m" * 4096, b"A" * 100000):
    with socket.socket(socket.AF_UNIX, socket.SOCK_SEQPACKET) as s:
        s.settimeout(5)
        s.connect(sys.argv[1])
        if message:
            s.send(message)
        if s.recv(1) != b"":
            sys.exit(f"{message[:20]!r}")
END
kill -STOP "$program"
expect_refusal "a second start of one that does not answer" secondo-avvio
kill -CONT "$program"
kill -0 "$program" || fail "the second start ended the first"
hand_over
titled "$(basename "$picture")   $size" ||
    fail "the second start changed the first"

# A program that was killed does not stand in the way of the next one.
kill -KILL "$program"
wait "$program" 2>/dev/null || true
start_program "$pixano"
expect_title "Pixano 2.3"
wait_for more_windows_than 1 ||
    fail "a killed program keeps the next one from starting"
kill "$program"
wait "$program" 2>/dev/null || true
program=

# A file where the data folder should be.
rm -rf "$XDG_DATA_HOME/pixano"
: >"$XDG_DATA_HOME/pixano"
expect_refusal "a start without a data folder" senza-cartella
echo "Second starts went well"
