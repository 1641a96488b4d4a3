#!/usr/bin/env bash
# The batch tool under GNU parallel with a job log, as docs/many-pictures.md shows it: interrupted,
# resumed, nothing done twice and nothing half written. Usage: many_pictures.sh PIXANO_BATCH PICTURE
set -euo pipefail

tool=$1
picture=$2
sandbox=$(mktemp -d)
trap 'rm -rf "$sandbox"' EXIT
export PARALLEL_HOME=$sandbox/parallel
cd "$sandbox"
mkdir foto risultati parallel
count=12

fail() {
    printf '%s\n' "$*" >&2
    cat registro.txt errori.txt >&2 || true
    exit 1
}

# Long enough for the interruption to find some pictures done, some begun and some waiting.
effects=()
for _ in $(seq 8); do effects+=(-e Vetro=2500 -e 'Artistico 1'); done

for i in $(seq -w "$count"); do cp "$picture" "foto/foto$i.jpg"; done

# All pictures, two at once.
run_all=(parallel --will-cite -q --jobs 2 --joblog registro.txt --resume-failed
    "$tool" --silenzioso -j 1 --seme 7 "${effects[@]}" -d risultati '{}' ::: foto/*.jpg)

# Which pictures the log says are done, one a line, each as often as it says so.
logged_done() {
    awk -F '\t' 'NR > 1 && $7 == 0 && $8 == 0 { print $9 }' registro.txt | grep -o 'foto[0-9]*\.jpg'
}

# What tells whether a result was written anew.
seen() {
    local name
    for name in "$@"; do stat -c '%n %i %y' "risultati/${name%.jpg}.bmp"; done
}

"$tool" --silenzioso --seme 7 "${effects[@]}" -o expected.bmp -- "$picture"

"${run_all[@]}" 2>>errori.txt &
parallel=$!
for _ in $(seq 600); do
    [[ ! -e registro.txt ]] || (($(wc -l <registro.txt) < 4)) || break
    sleep 0.05
done
# The first signal lets what runs come to its end, the second does not.
kill -HUP "$parallel"
for _ in $(seq 600); do
    ! grep -q 'No new jobs' errori.txt || break
    sleep 0.05
done
kill -TERM "$parallel" 2>/dev/null || true
wait "$parallel" 2>/dev/null && fail 'it came to its end although it was interrupted'

mapfile -t first < <(logged_done)
((${#first[@]} >= 3 && ${#first[@]} < count)) || fail "${#first[@]} were done at the interruption"
for result in risultati/*.bmp; do
    cmp -s expected.bmp "$result" || fail "$result is half written"
done
before=$(seen "${first[@]}")

"${run_all[@]}" 2>>errori.txt || fail 'the resumed run failed'
[[ $(seen "${first[@]}") == "$before" ]] || fail 'something was done twice'
[[ $(logged_done | sort | uniq -d) == '' ]] || fail 'the log names a picture twice'
(($(logged_done | wc -l) == count)) || fail 'the log does not name all pictures'
for i in $(seq -w "$count"); do
    cmp -s expected.bmp "risultati/foto$i.bmp" || fail "foto$i is not as it should be"
done

# A third run finds nothing to do.
before=$(stat -c '%n %i %y' risultati/*)
"${run_all[@]}" 2>>errori.txt || fail 'the third run failed'
[[ $(stat -c '%n %i %y' risultati/*) == "$before" ]] || fail 'the third run did something'
[[ $(find . -path ./parallel -prune -o -type f -print | wc -l) -eq $((2 * count + 3)) ]] ||
    fail 'something was left lying about'
echo "Interrupted after ${#first[@]} of $count, then resumed"
