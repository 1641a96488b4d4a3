#!/usr/bin/env bash
# A person's first day with the installed package, in a root where it has just been installed: the tool on
# the command line, the window from the menu with a picture, a strength that is remembered, and goodbye.
# Usage: in_clean_root.sh ROOT, with the project's folder in PIXANO_PROJECT
# shellcheck source-path=SCRIPTDIR

root=$1
project=$PIXANO_PROJECT
EVIDENCE=${EVIDENCE:-$project/build/packaging}
# shellcheck source=../e2e/screen.sh
. "$project/tests/e2e/screen.sh"

person=/home/prova
data=$person/.local/share/pixano
mkdir -p "$root$person"
cp "$project/resources/scena.jpg" "$root$person"
inside() {
    chroot "$root" env -i HOME=$person PATH=/usr/bin:/bin LC_ALL=C.UTF-8 DISPLAY="${DISPLAY:-}" "$@"
}

# On the command line.
effects=$(grep -c '\.run = ' "$project/src/effects/catalogue.h")
[ "$(inside pixano-batch --elenco | wc -l)" -eq "$effects" ] || fail "pixano-batch does not list $effects effects"
inside pixano-batch --seme 1 -e Vetro -e Multifoto -o $person/a.bmp $person/scena.jpg >/dev/null
inside pixano-batch --seme 1 -e Vetro=5000 -e Multifoto -o $person/b.bmp $person/scena.jpg >/dev/null
cmp "$root$person/a.bmp" "$root$person/b.bmp" || fail "the strengths beside the tool are not read"
[ "$(inside pixano --versione)" = "Pixano 2.3" ] || fail "pixano does not tell its version"

# From the menu, or by "Open with": what the entry says, with the picture in the place of %f.
entry=$root/usr/share/applications/pixano.desktop
read -ra command <<<"$(sed -n 's/^Exec=//p' "$entry")"
open_from_menu() {
    start_program inside "${command[@]/%\%f/$person/scena.jpg}"
    expect_title "Pixano 2.3"
    expect_opening_picture
    xdotool mousemove "$((${SCREEN_SIZE%x*} / 2))" "$((${SCREEN_SIZE#*x} / 2))" click 1
    expect_opened "scena.jpg   640x480"
}

# The fifteenth button that can be used is "Negativo".
apply_negative() {
    focus "Strumenti"
    local _
    for _ in $(seq 14); do keys Tab; done
    keys space
    wait_for is_active "Negativo Artistico" || fail "no slider window, but $(active_title)"
    shot "$1"
    shift
    keys "$@" Return
    expect_title "Negativo Artistico   640x480"
}

leave() {
    focus "Pixano 2.3"
    keys alt+f e
    wait_for is_active "Avviso!" || fail "no question about the unsaved changes, but $(active_title)"
    keys n
    wait_for test ! -d "/proc/$program" || keys alt+n
    local ended=0
    wait "$program" || ended=$?
    program=
    [ "$ended" -eq 0 ] || fail "the program ended with status $ended: $(cat "$sandbox/errors")"
}

strength() {
    tr -d '\r' <"$1" | head -n 1
}

start_screen
[ ! -e "$root$data" ] || fail "$data is there too early"
open_from_menu
shot 1-dal-menu
[ "$(strength "$root$data/valori.tip")" = 1000 ] || fail "the strengths are not put into $data"
apply_negative 2-forza End
leave
[ "$(strength "$root$data/valori.tip")" = 10000 ] || fail "the strength is not kept in $data"

# The next time the slider stands where it was left: OK alone saves the same.
open_from_menu
apply_negative 3-ricordata
leave
[ "$(strength "$root$data/valori.tip")" = 10000 ] || fail "the strength is not remembered"
[ "$(strength "$root/usr/lib/pixano/valori.tip")" = 1000 ] || fail "the program's own strengths changed"
cmp "$project/resources/scena.jpg" "$root$person/scena.jpg" || fail "the opened file was changed"
[ ! -e "$root/valori.tip" ] || fail "something was left in the folder that the session began in"

# Gone without a trace, but for what belongs to the person.
inside apt-get -qq -y purge pixano >/dev/null
left=$(find "$root" -xdev -path "$root$person" -prune -o -path "$root/var/lib/apt/lists" -prune -o \
    -path "$root/proc" -prune -o -name '*pixano*' ! -name 'pixano_*.deb' -print)
[ -z "$left" ] || fail "left behind: $left"
test -s "$root$data/valori.tip" || fail "the person's strengths went with the package"
echo "Installed, used from the menu and removed; the pictures are in $EVIDENCE"
