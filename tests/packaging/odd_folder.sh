#!/usr/bin/env bash
# The three commands where nobody tried them: a folder with blanks and accents in its name, under a umask that
# lets nobody else in. The package made there is, byte for byte, the one of another folder at another time.
# Usage: odd_folder.sh PROJECT
# shellcheck source-path=SCRIPTDIR
set -euo pipefail

project=$1
# shellcheck source=../../scripts/install.bash
. "$project/scripts/install.bash"
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
plain=$folder/plain
odd="$folder/Le mie figure è più belle"

# Copies the sources to the folder $1, as old as $2.
copy_sources() {
    mkdir "$1"
    tar -C "$project" --exclude=./build --exclude=./.git -cf - . | tar -C "$1" -xf -
    find "$1" -exec touch --date="$2" '{}' +
}

copy_sources "$plain" '2001-02-03 04:05'
first=$("$plain/package" | tail -n 1)

umask 077
copy_sources "$odd" now
chmod -R go= "$odd"
# What the program wrote there is not for others.
echo '"/home/io/foto.bmp"' >"$odd/percors.dat"
second=$("$odd/package" | tail -n 1)
for built in "${first%_2*}"*.deb; do
    cmp "$built" "${second%/*}/${built##*/}" || fail "FAILED: the same sources give another ${built##*/}"
done
[[ $(tar -tf "${second%/*}"/pixano_*.tar.xz | grep -c percors.dat) -eq 0 ]] ||
    fail "FAILED: the sources of the package tell what somebody opened"
[[ $(dpkg-deb -c "$second" | grep -c '^drwx------') -eq 0 ]] || fail "FAILED: a folder that nobody may enter"

# Without a display the batch tool shows what the program does.
env -u DISPLAY -u WAYLAND_DISPLAY "$odd/run" >"$folder/told"
tail -n 1 "$folder/told" | grep -qF "$odd/build/prova.bmp" || fail "FAILED: ./run does not name its result"
[[ $(head -c 2 "$odd/build/prova.bmp") == BM ]] || fail "FAILED: ./run makes no picture"

"$odd/test" || fail "FAILED: ./test in a folder with blanks"
echo "./run, ./test and ./package work in \"$odd\"."
