# Roots of Debian: where its packages come from, and how one gets in. Sourced after install.bash by what makes roots.

debian_archive=http://deb.debian.org/debian

# Gives the codename of this machine's Debian.
own_codename() {
    # shellcheck source=/dev/null
    (. /etc/os-release && echo "$VERSION_CODENAME")
}

# Gives the codename of the Debian of that number; sid has no number.
codename_of() {
    case $1 in
    12) echo bookworm ;;
    13) echo trixie ;;
    sid) echo sid ;;
    *) fail "Di Debian \"$1\" non so il nome: so di 12, 13 e sid." ;;
    esac
}

# Becomes a command in the root $1, of its user $2, with nothing of this machine's environment and with the folder $3 as
# its store of downloaded packages: call it in a shell of its own. Mounts and processes are of a world of their own,
# which ends with the command, or when this is killed: outside nothing is ever mounted below the root, so that it can be
# removed.
enter_root() {
    # shellcheck disable=SC2016 # expanded in that world
    exec unshare --mount --pid --fork --kill-child --propagation private bash -c '
        set -euo pipefail
        root=$1 user=$2 store=$3
        mount -t proc proc "$root/proc"
        mount -t sysfs -o ro sysfs "$root/sys"
        mount -t devpts -o newinstance,ptmxmode=666,mode=620,gid=5 devpts "$root/dev/pts"
        mount -t tmpfs -o mode=1777 tmpfs "$root/dev/shm"
        mount --bind "$store" "$root/var/cache/apt/archives"
        home=$(awk -F: -v user="$user" "\$1 == user { print \$6 }" "$root/etc/passwd")
        # The first process stays this one: it waits for those that others leave behind.
        chroot --userspec="$user" "$root" env -i --chdir="$home" HOME="$home" USER="$user" LOGNAME="$user" TERM=dumb \
            PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin "${@:4}" </dev/null || exit' enter_root "$@"
}
