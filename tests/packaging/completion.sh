#!/usr/bin/env bash
# What the Tab key makes of a command line, asked from a real bash on a terminal of its own; before, whether
# completion and manual pages know what the programs know.
# Usage: completion.sh PROJECT FOLDER_OF_PROGRAMS
# shellcheck source-path=SCRIPTDIR
set -euo pipefail

project=$1
programs=$2
# shellcheck source=../../scripts/install.bash
. "$project/scripts/install.bash"
install_missing "${test_packages[@]}"
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
touch "$folder"/{foto.jpg,testo.txt}
mkdir "$folder/risultati"

cat >"$folder/rc" <<RC
. /usr/share/bash-completion/bash_completion
. '$project/packaging/completion/pixano'
. '$project/packaging/completion/pixano-batch'
PATH='$programs':\$PATH
PS1='> '
bind 'set enable-bracketed-paste off'
bind 'set bell-style none'
# Ctrl+T leaves the words that the shell would read, one a line, instead of running them.
keep() { eval "printf '%s\n' \$READLINE_LINE" >'$folder/words'; }
bind -x '"\C-t": keep'
PROMPT_COMMAND=": >'$folder/waiting'"
cd '$folder'
RC

# The words that bash reads after the keys $1.
complete_keys() {
    rm -f "$folder/words" "$folder/waiting"
    {
        until [[ -e $folder/waiting ]]; do sleep 0.02; done
        printf '%b\x14' "$1"
        for _ in $(seq 100); do
            [[ ! -e $folder/words ]] || break
            sleep 0.1
        done
        printf '\x15exit\n'
    } | LC_ALL=C.UTF-8 TERM=dumb script -qec "bash --rcfile '$folder/rc' -i" /dev/null >/dev/null
    cat "$folder/words"
}

# What a program says of itself stands in its completion and in both its manual pages.
for name in pixano pixano-batch; do
    for word in $("$programs/$name" --aiuto | grep -oE -- '--[a-z-]{2,}|\.(bmp|png|jpe?g)\b' | sort -u); do
        [[ $word == .* ]] || grep -qE -- "(^|[ '])$word([ ']|\$)" "$project/packaging/completion/$name" ||
            fail "FAILED: the completion of $name does not offer $word"
        for page in "$project/packaging/man"/{,it/}"$name.1"; do
            grep -qE -- "(^|[ /\"])${word/./\\.}([ \",.]|\$)" <<<"$(sed 's/\\-/-/g' "$page")" ||
                fail "FAILED: $page does not tell of $word"
        done
    done
done

expect_words() {
    local keys=$1
    shift
    local read
    read=$(complete_keys "$keys")
    [[ $read == "$(printf '%s\n' "$@")" ]] || fail "FAILED: $keys gives" "$read"
}

expect_words 'pixano-batch -e Rotazione\\ +\t' pixano-batch -e 'Rotazione +90°'
expect_words "pixano-batch -e 'Rotazione +\\t" pixano-batch -e 'Rotazione +90°'
expect_words 'pixano-batch -e "Rifl. Oriz\t' pixano-batch -e 'Rifl. Oriz. Inferiore'
expect_words 'pixano-batch --effetto=Mix\\ M\t' pixano-batch '--effetto=Mix Multifoto'
# A strength is offered where there is one, and only there.
expect_words 'pixano-batch -e Vetro=1\t' pixano-batch -e Vetro=10000
expect_words 'pixano-batch -e "Foto Color Rnd=1\t' pixano-batch -e 'Foto Color Rnd=10000'
expect_words 'pixano-batch -e Specchio=1\t' pixano-batch -e Specchio=1
expect_words 'pixano-batch --qua\t 80 fo\t' pixano-batch --qualita 80 foto.jpg
expect_words 'pixano-batch --si\t fo\t' pixano-batch --silenzioso foto.jpg
expect_words 'pixano-batch --tu\t --en\t' pixano-batch --tutti --entro
expect_words 'pixano-batch -d \t' pixano-batch -d risultati/
expect_words 'pixano-batch -- --si\t' pixano-batch -- --si
expect_words 'pixano --da\t fo\t' pixano --da-menu foto.jpg
# Every effect comes back as one word that the tool takes.
"$programs/pixano-batch" --elenco | cut -f1 >"$folder/names"
compgen_names() {
    bash -ic ". '$folder/rc' 2>/dev/null; COMP_LINE='pixano-batch -e '; COMP_POINT=16
        COMP_WORDS=(pixano-batch -e ''); COMP_CWORD=2; COMP_TYPE=9; COMP_KEY=9
        _pixano_batch pixano-batch '' -e; printf '%s\n' \"\${COMPREPLY[@]}\"" 2>/dev/null
}
mapfile -t offered < <(compgen_names)
for word in "${offered[@]}"; do
    eval "name=$word"
    # shellcheck disable=SC2154 # eval sets it
    grep -qxF -- "${name%=}" "$folder/names" || fail "FAILED: $word is no effect"
done
((${#offered[@]} == $(wc -l <"$folder/names") + 5)) || fail "FAILED: ${#offered[@]} words offered"
echo "Completion completes."
