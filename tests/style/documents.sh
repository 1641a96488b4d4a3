#!/usr/bin/env bash
# Links of the documents lead somewhere, no picture of theirs is left over, all name one version, and the files and
# names that they speak of are there: documents.sh PROJECT
set -euo pipefail

cd -- "$1"
complain() {
    printf '%s\n' "$@" >&2
    failed=1
}
failed=0

used=$(mktemp)
trap 'rm -f "$used"' EXIT
for page in README.md CONTRIBUTING.md resources/README.md docs/*.md; do
    folder=$(dirname -- "$page")
    # Links and pictures, in Markdown and in its HTML.
    while read -r link; do
        file=${link%%#*}
        case $link in
        http*) continue ;;
        '#'*)
            # A place of the page: set by hand, or a heading's.
            anchor=${link#\#}
            grep -qF "<a id=\"$anchor\"></a>" "$page" || sed -nE 's/^#+ //p' "$page" | tr '[:upper:] ' '[:lower:]-' |
                sed 's/[^[:alnum:]àèéìòù-]//g' | grep -qxF -- "$anchor" || complain "$page: no place $link"
            continue
            ;;
        esac
        [[ -e $folder/$file ]] || complain "$page: no file $link"
        realpath --relative-to=. -m -- "$folder/$file" >>"$used"
    done < <(grep -oE '\]\([^)]+\)|(src|href)="[^"]+"' "$page" | sed -E 's/^\]\(//; s/\)$//; s/^(src|href)="//; s/"$//')
done
grep -oE 'docs/[^<]+' packaging/*.metainfo.xml >>"$used" || complain "The metainfo names no screenshot"
while read -r picture; do
    [[ -e $picture ]] || complain "The metainfo names $picture, which is not there"
done < <(grep -oE 'docs/[^<]+' packaging/*.metainfo.xml)
while read -r picture; do
    grep -qxF -- "$picture" "$used" || complain "Nothing links $picture"
done < <(find docs -name '*.jpg' -o -name '*.png' | sort)
# The version stands in CMakeLists.txt; texts that cannot ask for it say the same.
version=$(sed -nE 's/^project\(.* VERSION ([0-9.]+) .*/\1/p' CMakeLists.txt)
while IFS=: read -r file text; do
    grep -qF -- "${text//VERSION/$version}" "$file" || complain "$file: not \"${text//VERSION/$version}\""
done <<'TEXTS'
debian/changelog:pixano (VERSION)
packaging/org.example.pixano.metainfo.xml:<release version="VERSION"
packaging/man/pixano.1:"Pixano VERSION"
packaging/man/pixano-batch.1:"Pixano VERSION"
packaging/man/it/pixano.1:"Pixano VERSION"
packaging/man/it/pixano-batch.1:"Pixano VERSION"
resources/descrizione.html:<b>Pixano VERSION</b>
TEXTS
# Files in backticks, named from the project's folder or from that of the sources or tests. ROOM stands for any.
while IFS=: read -r page file; do
    file=${file/ROOM/*}
    [[ -e ${file%%/*} || -e src/${file%%/*} || -e tests/${file%%/*} ]] || continue
    compgen -G "$file" >/dev/null || compgen -G "src/$file" >/dev/null || compgen -G "tests/$file" >/dev/null ||
        complain "$page: no file $file"
done < <(grep -oE '`[a-z_]+/[^` ]*' README.md CONTRIBUTING.md docs/*.md | tr -d '`' | grep -v ':build/')
# The glossary's names are the code's (what only its class sees begins in lower case there), and all that an effect or a
# command meets under an Italian name is in the glossary.
explained=$(grep -oE '^\| [^|]+ \|' docs/glossary.md | grep -oE '`[A-Za-z0-9_]+`' | tr -d '`' | sort -u)
while read -r name; do
    grep -rqE "\b($name|${name,}_)\b" src || complain "docs/glossary.md: nothing is called $name"
done <<<"$explained"
while read -r name; do
    grep -qxF -- "$name" <<<"$explained" || complain "docs/glossary.md does not explain $name"
done < <(
    sed -nE 's/.*\.run = ([A-Za-z0-9]+).*/\1/p' src/effects/catalogue.h
    sed -nE 's/^    [A-Za-z0-9_:]+ ([A-Z][A-Za-z0-9]*)(\{\}| = [^;]+)?;.*/\1/p' src/document/document.h src/canvas/work.h
    sed -nE 's/^void ([A-Z][a-z]*_Click)\(.*/\1/p' src/*/*.h
)
effects=$(grep -c '\.run = ' src/effects/catalogue.h)
[[ $(grep -c '<a id="' docs/guida.md) -eq $effects ]] || complain "The guide does not describe all $effects effects"
# Some say how many in words.
in_italian=([46]=quarantasei quarantasette quarantotto quarantanove cinquanta cinquantuno cinquantadue)
in_english=([46]=forty-six forty-seven forty-eight forty-nine fifty fifty-one fifty-two)
while IFS=: read -r file text; do
    text=${text/ITALIAN/${in_italian[effects]:?"$0 knows no word for $effects"}}
    text=${text/ENGLISH/${in_english[effects]}}
    tr -s '\n ' ' ' <"$file" | grep -qF -- "$text" || complain "$file: not \"$text\""
done <<'TEXTS'
docs/guida.md:tutti e ITALIAN,
debian/control:any of ENGLISH effects
packaging/man/pixano.1:its ENGLISH effects
packaging/man/it/pixano.1:fra i suoi ITALIAN:
packaging/org.example.pixano.metainfo.xml:any of ENGLISH effects
packaging/org.example.pixano.metainfo.xml:fra i suoi ITALIAN:
TEXTS
exit "$failed"
