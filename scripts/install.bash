# Installs the Debian packages that are missing. Sourced by ./run and ./test, which use the lists.
# shellcheck disable=SC2034

# What building and running Pixano needs.
run_packages=(
    g++ cmake ninja-build
    qt6-base-dev qt6-translations-l10n libgl1-mesa-dev libxcb1-dev
    libjpeg62-turbo-dev libgif-dev libpng-dev
    fonts-dejavu-core
)
# What checking it needs on top of that.
test_packages=(
    libgtest-dev libgmock-dev libbenchmark-dev
    xvfb openbox xdotool imagemagick x11-utils x11-xserver-utils
    at-spi2-core dbus-daemon gir1.2-atspi-2.0 python3-gi
    clang-format clang-tidy cppcheck lld
    bash-completion parallel fonts-urw-base35
    mutter qt6-wayland weston
)
# What handing pictures to several machines needs to be tried; Debian starts a server of its own with it.
machines_test_packages=(openssh-client openssh-server)
# What its long form builds with as well, and the window manager that it tries beside the others.
long_test_packages=(clang xfwm4)
# What building the batch tool for another processor needs, and running it here.
arm64_packages=(g++-aarch64-linux-gnu qemu-user-static mmdebstrap)
# What measuring it beside other tools needs on top of both.
bench_packages=(graphicsmagick imagemagick time)

# What making the Debian package needs on top of the first list.
package_packages=(build-essential debhelper dpkg-dev)
# What checking it needs on top of that.
package_test_packages=(
    lintian desktop-file-utils appstream man-db groff-base mmdebstrap autopkgtest bash-completion
    xvfb openbox xdotool imagemagick x11-utils
)

# Ends the script: says why.
fail() {
    printf '%s\n' "$@" >&2
    exit 1
}

# Gives those of the named packages that are not installed, one a line.
missing_packages() {
    local installed
    installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null || true)
    local package
    for package in "$@"; do
        grep -qxF "installed $package" <<<"$installed" || printf '%s\n' "$package"
    done
}

# Installs those of the named packages that are not installed; says nothing when there is nothing
# to do.
install_missing() {
    command -v dpkg-query >/dev/null ||
        fail 'Questo non sembra un sistema Debian: i pacchetti che servono vanno installati a mano.' \
            "Il loro elenco è in ${BASH_SOURCE[0]}"
    local missing
    mapfile -t missing < <(missing_packages "$@")
    ((${#missing[@]})) || return 0
    local as_root=()
    if ((EUID != 0)); then
        command -v sudo >/dev/null ||
            fail 'Mancano dei pacchetti, e qui non ci sono i diritti per installarli (né root, né sudo).' \
                'Chi amministra il sistema può farlo con questo comando:' \
                "  apt-get install --no-install-recommends ${missing[*]}"
        as_root=(sudo)
    fi
    printf 'Installo i pacchetti che mancano: %s\n' "${missing[*]}" >&2
    local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -o Dpkg::Use-Pty=0)
    # Its chatter goes where messages go: standard output is for results.
    "${apt[@]}" update >&2 ||
        printf 'Non è stato possibile aggiornare gli elenchi dei pacchetti: provo con quelli che ci sono.\n' >&2
    "${apt[@]}" install -y --no-install-recommends "${missing[@]}" >&2 ||
        fail 'Non è stato possibile installare i pacchetti: il motivo è qui sopra. Serve la rete.'
}
