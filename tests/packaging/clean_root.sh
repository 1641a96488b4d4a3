#!/usr/bin/env bash
# The Debian package on a new Debian, of this machine's release and of the one that follows it: apt brings what it depends
# on, and nothing else is there. Needs the archive of Debian packages. Then the package's own tests, debian/tests,
# in the same place.
# Usage: clean_root.sh PROJECT
# shellcheck source-path=SCRIPTDIR
set -euo pipefail

project=$1
# shellcheck source=../../scripts/install.bash
. "$project/scripts/install.bash"
# shellcheck source=../../scripts/debian.bash
. "$project/scripts/debian.bash"
install_missing "${package_test_packages[@]}"
package=$("$project/package" | tail -n 1)
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
chmod 755 "$folder"

# An archive that holds this one package.
mkdir "$folder/archive"
cp "$package" "${package%/*}"/pixano_*.{dsc,tar.xz} "$folder/archive"
(cd "$folder/archive" && dpkg-scanpackages --multiversion . >Packages 2>/dev/null)

# What is made on a release is used on the next one too. The other way round apt refuses it, for want of libraries.
codenames=("$(own_codename)")
[[ ${codenames[0]} != bookworm ]] || codenames+=(trixie)
export PIXANO_PROJECT=$project
for codename in "${codenames[@]}"; do
    # shellcheck disable=SC2016 # expanded by the hook's shell
    EVIDENCE=$project/build/packaging/$codename mmdebstrap --quiet --variant=apt --include=pixano \
        --aptopt='APT::Install-Recommends "false"' \
        --customize-hook='"$PIXANO_PROJECT/tests/packaging/in_clean_root.sh" "$1"' \
        --customize-hook='sed -i "/ copy:/d" "$1"/etc/apt/sources.list' \
        --customize-hook="autopkgtest -U --no-built-binaries $folder/archive/*.deb $folder/archive/*.dsc -- chroot \"\$1\"" \
        "$codename" "$folder/root.tar" \
        "deb $debian_archive $codename main" \
        "deb [trusted=yes] copy:$folder/archive ./"
    echo "Good on $codename."
done
