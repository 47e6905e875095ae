#!/usr/bin/env bash
# A Slurm cluster of this machine alone, for a test that runs this script in a folder of its own.
# Prints the path of the configuration (for SLURM_CONF) once jobs can be sent, and ends the daemons
# when standard input ends, so that they never outlive the test. An array has at most 10 tasks.
set -euo pipefail
here=$PWD
PATH=$PATH:/usr/sbin:/sbin
export SLURM_CONF=$here/slurm.conf
daemons=()

stop() {
    [ ${#daemons[@]} -eq 0 ] || kill "${daemons[@]}" 2>/dev/null || true
    wait
}
trap stop EXIT

configure() {
    local port=$((20000 + RANDOM % 12000))
    cat >slurm.conf <<END
ClusterName=test
SlurmctldHost=localhost(127.0.0.1)
SlurmUser=$(id -un)
SlurmdUser=$(id -un)
SlurmctldPort=$port
SlurmdPort=$((port + 1))
AuthType=auth/munge
AuthInfo=socket=$here/munge.socket
StateSaveLocation=$here/state
SlurmdSpoolDir=$here/spool
SlurmctldPidFile=$here/slurmctld.pid
SlurmdPidFile=$here/slurmd.pid
SlurmctldLogFile=$here/slurmctld.log
SlurmdLogFile=$here/slurmd.log
ProctrackType=proctrack/pgid
TaskPlugin=task/none
MpiDefault=none
SelectType=select/cons_tres
SelectTypeParameters=CR_Core
SchedulerParameters=batch_sched_delay=0,sched_interval=1
KillWait=1
MaxArraySize=11
SlurmdParameters=config_overrides
NodeName=localhost NodeAddr=127.0.0.1 CPUs=4
PartitionName=main Nodes=localhost Default=YES
END
}

start() {
    "$@" </dev/null &>"$(basename "$1").out" &
    daemons+=($!)
}

is_ready() {
    local end=$((SECONDS + 20))
    while [ $SECONDS -lt $end ]; do
        [ "$(sinfo -h -o %T 2>/dev/null)" != idle ] || return 0
        # A port is taken: the daemon has ended.
        kill -0 "${daemons[@]}" 2>/dev/null || return 1
        sleep 0.1
    done
    return 1
}

mkdir -p state spool
chmod 755 .
head -c 1024 /dev/urandom >munge.key
chmod 400 munge.key
for _ in 1 2 3; do
    configure
    start munged --foreground --force --key-file=munge.key --socket="$here/munge.socket" \
        --pid-file="$here/munge.pid" --log-file="$here/munge.log" --seed-file="$here/munge.seed"
    start slurmctld -D -c
    start slurmd -D -N localhost
    if is_ready; then
        echo "$SLURM_CONF"
        while read -r _; do :; done
        # Jobs would outlive the daemons.
        scancel --user="$(id -un)"
        for _ in {1..100}; do
            [ -n "$(squeue -h)" ] || break
            sleep 0.1
        done
        exit 0
    fi
    stop
    daemons=()
done
tail -n 5 ./*.log ./*.out >&2
exit 1
