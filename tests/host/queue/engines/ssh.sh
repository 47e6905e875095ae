#!/usr/bin/env bash
# Machines "alpha" and "beta" behind a real sshd on this one, for a test that runs this script in a
# folder of its own. Each has the home folder of its name there, with programs of its own in "bin".
# Prints a folder for the PATH once its "ssh" reaches them, and ends sshd when standard input ends,
# so that it never outlives the test. "gamma" is a machine that is off.
set -euo pipefail
here=$PWD
PATH=$PATH:/usr/sbin:/sbin
sshd=
trap '[ -z "$sshd" ] || kill "$sshd" 2>/dev/null || true; wait' EXIT

configure() {
    local port=$((20000 + RANDOM % 12000)) host
    cat >sshd_config <<END
ListenAddress 127.0.0.1
HostKey $here/host_key
PidFile none
AuthorizedKeysFile $here/key.pub
StrictModes no
UsePAM no
PasswordAuthentication no
PermitRootLogin yes
MaxStartups 100
END
    : >ssh_config
    for host in alpha beta; do
        sed -i "1iPort $port" sshd_config
        # What a machine with another home folder would do.
        cat >>sshd_config <<END
Match LocalPort $port
    ForceCommand cd "$here/$host" && export HOME=\$PWD PATH=\$PWD/bin:\$PATH && eval "\$SSH_ORIGINAL_COMMAND"
END
        printf 'Host %s\n    Port %s\n' "$host" "$port" >>ssh_config
        port=$((port + 1))
    done
    cat >>ssh_config <<END
Host gamma
    Port 1
Host *
    HostName 127.0.0.1
    IdentityFile $here/key
    UserKnownHostsFile $here/known_hosts
    StrictHostKeyChecking no
    LogLevel ERROR
END
}

is_ready() {
    local end=$((SECONDS + 20))
    while [ $SECONDS -lt $end ] && kill -0 "$sshd" 2>/dev/null; do
        ! bin/ssh alpha true || ! bin/ssh beta true || return 0
        sleep 0.1
    done 2>/dev/null
    return 1
}

mkdir -p alpha/bin beta/bin bin
[ "$(id -u)" -ne 0 ] || mkdir -p /run/sshd
ssh-keygen -q -t ed25519 -N '' -f host_key
ssh-keygen -q -t ed25519 -N '' -f key
printf '#!/bin/sh\nexec %s -F %s/ssh_config "$@"\n' "$(command -v ssh)" "$here" >bin/ssh
chmod +x bin/ssh
for _ in 1 2 3; do
    configure
    "$(command -v sshd)" -D -f sshd_config -E "$here/sshd.log" </dev/null &
    sshd=$!
    if is_ready; then
        echo "$here/bin"
        while read -r _; do :; done
        exit 0
    fi
    kill "$sshd" 2>/dev/null || true
    wait
done
tail -n 5 sshd.log >&2
exit 1
