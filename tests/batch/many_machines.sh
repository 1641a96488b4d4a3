#!/usr/bin/env bash
# The recipe of docs/many-pictures.md for more than one machine, word for word: this one under its own name
# and under two more, by way of an ssh server of the test's own, on the loopback address.
# Usage: many_machines.sh PROJECT PIXANO_BATCH PICTURE
# shellcheck source-path=SCRIPTDIR
set -euo pipefail

project=$1
tool=$2
picture=$3
# shellcheck source=../../scripts/install.bash
. "$project/scripts/install.bash"
install_missing "${test_packages[@]}" "${machines_test_packages[@]}"

sandbox=$(mktemp -d)
server=
cleanup() {
    [[ -z $server ]] || kill "$server" 2>/dev/null || true
    rm -rf "$sandbox"
}
trap cleanup EXIT
mkdir "$sandbox"/{server,parallel}
cd "$sandbox/server"

for name in host own; do ssh-keygen -q -t ed25519 -N '' -f "$name"; done
# As root it wants a folder that the system's own server would have made.
((EUID != 0)) || mkdir -p /run/sshd

# Starts the server on the port $1; fails where another program has it.
start_server() {
    cat >server.conf <<CONF
ListenAddress 127.0.0.1
Port $1
HostKey $PWD/host
AuthorizedKeysFile $PWD/own.pub
PidFile none
PasswordAuthentication no
KbdInteractiveAuthentication no
PermitRootLogin prohibit-password
StrictModes no
UsePAM no
SetEnv PATH="$(dirname -- "$tool"):/usr/bin:/bin"
CONF
    cat >ssh.conf <<CONF
Host uno due
    HostName 127.0.0.1
    Port $1
    HostKeyAlias here
    UserKnownHostsFile $PWD/known
    IdentityFile $PWD/own
    IdentitiesOnly yes
    BatchMode yes
CONF
    echo "here $(cat host.pub)" >known
    /usr/sbin/sshd -D -e -f server.conf 2>server.log &
    server=$!
    local _
    for _ in $(seq 100); do
        kill -0 "$server" 2>/dev/null || return 1
        ! ssh -F ssh.conf uno true 2>>client.log || return 0
        sleep 0.1
    done
    return 1
}
for _ in $(seq 5); do
    ! start_server "$((20000 + RANDOM % 20000))" || break
    server=
done
[[ $server ]] || fail 'FAILED: no ssh server' "$(cat server.log client.log)"

export PARALLEL_HOME=$sandbox/parallel PARALLEL_SSH="ssh -F $PWD/ssh.conf"
PATH=$(dirname -- "$tool"):$PATH
mkdir "$sandbox/lavoro"
cd "$sandbox/lavoro"
mkdir foto risultati
for i in $(seq -w 24); do cp "$picture" "foto/foto$i.jpg"; done
find foto -name '*.jpg' | sort >elenco.txt
"$tool" --silenzioso --seme 7 -e Specchio -o "$sandbox/expected.bmp" -- "$picture"

recipe=$(sed -n '/^## More than one machine/,$ s/^    //p' "$project/docs/many-pictures.md")
[[ $recipe == *'--sshlogin :,uno,due'* ]] || fail 'FAILED: the recipe has no three machines'
eval "$recipe" </dev/null || fail 'FAILED: the recipe fails' "$(cat registro.txt "$sandbox"/server/*.log)"

for i in $(seq -w 24); do
    cmp "$sandbox/expected.bmp" "risultati/foto$i.bmp" || fail "FAILED: foto$i is not as it should be"
done
machines=$(awk -F '\t' 'NR > 1 { print $2 }' registro.txt | sort -u | tr '\n' ' ')
[[ $machines == ': due uno ' ]] || fail "FAILED: only $machines worked"
echo "Three machines made the same pictures."
