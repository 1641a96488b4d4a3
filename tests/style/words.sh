#!/usr/bin/env bash
# One word for what the user works on, "immagine", in all that he reads: words.sh PROJECT
set -euo pipefail

cd -- "$1"
# Texts of the program, not comments, which are English; and the documents that are Italian.
found=$(grep -rnwiE '"[^"]*(figura|figure)[^"]*"' src --include='*.cpp' --include='*.h' | grep -v '</\?figure>' || true
    grep -nwiE 'figura|figure' run docs/guida.md resources/*.html packaging/man/it/* packaging/*.desktop \
        packaging/*.xml || true)
[[ -z $found ]] || {
    printf 'Not "immagine":\n%s\n' "$found" >&2
    exit 1
}
