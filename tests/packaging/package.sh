#!/usr/bin/env bash
# The Debian package: made, judged by Debian's own checkers, unpacked, and its programs used from there.
# Usage: package.sh PROJECT
# shellcheck source-path=SCRIPTDIR
set -euo pipefail

project=$1
# shellcheck source=../../scripts/install.bash
. "$project/scripts/install.bash"
install_missing "${package_test_packages[@]}"
package=$("$project/package" | tail -n 1)
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
dpkg-deb -x "$package" "$folder/root"
dpkg-deb -e "$package" "$folder/control"
root=$folder/root

expect() {
    local what=$1
    shift
    "$@" || fail "FAILED: $what"
}

as_root=()
((EUID != 0)) || as_root=(--allow-root)
# lintian takes no name with accents for a file's.
mkdir "$folder/made"
cp "${package%/*}"/pixano* "$folder/made"
expect "lintian has something to say" \
    lintian "${as_root[@]}" --display-info --fail-on error,warning,info "$folder"/made/*.changes
expect "the menu entry is not valid" desktop-file-validate "$root/usr/share/applications/pixano.desktop"
expect "the metainfo is not valid" \
    appstreamcli validate --pedantic --no-net "$root/usr/share/metainfo/org.example.pixano.metainfo.xml"

# Manual pages: no complaint of the formatter, and every option of the programs is in both languages.
for page in "$root"/usr/share/man/{,it/}man1/*.1.gz; do
    complaints=$(LC_ALL=C.UTF-8 MANWIDTH=80 man --warnings -E UTF-8 -l "$page" 2>&1 >"$folder/page")
    expect "$page: $complaints" test -z "$complaints"
    expect "$page is empty" test -s "$folder/page"
    name=$(basename "$page" .1.gz)
    options=$(QT_QPA_PLATFORM=offscreen "$root/usr/bin/$name" --aiuto | grep -oE -- '--[a-z-]{2,}')
    for option in $options; do
        expect "$page does not tell of $option" grep -qF -- "$option" "$folder/page"
    done
done

# Files: root's, for everybody to read, as listed in md5sums.
strangers=$(dpkg-deb -c "$package" | grep -vE '^(drwxr-xr-x|-rwxr-xr-x|-rw-r--r--|lrwxrwxrwx) root/root ' || true)
expect "unexpected owner or rights: $strangers" test -z "$strangers"
expect "md5sums differs" env -C "$root" md5sum --quiet --check "$folder/control/md5sums"
expect "files without a checksum" \
    test "$(find "$root" -type f | wc -l)" -eq "$(wc -l <"$folder/control/md5sums")"

# Programs: hardened and stripped.
for program in pixano pixano-batch; do
    binary=$root/usr/lib/pixano/$program
    expect "$program is no PIE" grep -q 'Type:.*DYN' <(readelf -hW "$binary")
    expect "$program: no RELRO" grep -q GNU_RELRO <(readelf -lW "$binary")
    expect "$program binds late" grep -q 'FLAGS.*NOW' <(readelf -dW "$binary")
    expect "$program: no stack protector" grep -q __stack_chk_fail <(readelf --dyn-syms -W "$binary")
    expect "$program: not fortified" grep -qE '__[a-z]+_chk' <(readelf --dyn-syms -W "$binary")
    [[ $(dpkg --print-architecture) != amd64 ]] ||
        expect "$program: jumps go anywhere" test "$(objdump -d "$binary" | grep -c endbr64)" -gt 100
    expect "$program has symbols" test -z "$(readelf -sW "$binary" | grep -F "'.symtab'")"
    expect "$program names the place where it was built" test "$(grep -cF "$project" "$binary")" -eq 0
done

# Through the link on the path the tool finds the strengths that lie beside it.
batch=$root/usr/bin/pixano-batch
apply() {
    "$batch" --silenzioso --seme 1 -e "$1" -o "$folder/$2" "$project/resources/scena.jpg"
}
apply Vetro own.bmp
apply Vetro=5000 given.bmp
expect "the strengths beside the program are not read" cmp "$folder/own.bmp" "$folder/given.bmp"
printf '1000\r\n5000\r\n9000\r\n5000\r\n5000\r\n' >"$root/usr/lib/pixano/valori.tip"
apply Vetro changed.bmp
apply Vetro=9000 given.bmp
expect "a changed strength is not read" cmp "$folder/changed.bmp" "$folder/given.bmp"
echo "$package is a good package."
