#!/usr/bin/env bash
# Runs all fuzz targets, each on all cores, for MINUTES in total. Findings, and inputs that reached
# new code, are kept in build/fuzz/kept and tried first the next time.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=tools/build.sh
. tools/build.sh

if [[ $# -ne 1 || ! $1 =~ ^[1-9][0-9]*$ ]]; then
    echo "Usage: tools/fuzz.sh MINUTES" >&2
    exit 2
fi
missing=$(missing_packages "${build_packages[@]}" "${fuzz_packages[@]}")
if [ -n "$missing" ]; then
    echo "Missing packages; install them with apt-get:" "${missing//$'\n'/ }" >&2
    exit 2
fi
build fuzz
mapfile -t targets <build/fuzz/tests/fuzz/targets
seconds=$(($1 * 60 / ${#targets[@]}))
cores=$(nproc)

# Leaks are only checked at the end of a run: checking each input would stop at a leak in Qt.
export ASAN_OPTIONS=quarantine_size_mb=32
export LSAN_OPTIONS=suppressions=tests/fuzz/leaks.supp:print_suppressions=0

fuzz() {
    local target=$1 log=$2 kept=build/fuzz/kept/$1 TIMEFORMAT=%U
    {
        time "build/fuzz/tests/fuzz/fuzz_$target" -max_total_time="$seconds" -timeout=10 \
            -detect_leaks=0 -print_final_stats=1 -dict="build/fuzz/tests/fuzz/$target.dict" \
            -artifact_prefix="$kept/findings/" \
            "$kept/inputs" "$kept/findings" "tests/fuzz/$target" >"$log" 2>&1
    } 2>"$log.seconds"
}

sum() {
    awk '{ sum += $NF } END { printf "%d", sum }' "$@"
}

all_findings=0
for target in "${targets[@]}"; do
    kept=build/fuzz/kept/$target
    mkdir -p "$kept/inputs" "$kept/findings"
    rm -f "$kept"/*.log "$kept"/*.seconds
    runs=()
    for ((core = 1; core <= cores; ++core)); do
        fuzz "$target" "$kept/$core.log" &
        runs+=($!)
    done
    findings=0
    for run in "${runs[@]}"; do
        wait "$run" || findings=$((findings + 1))
    done
    inputs=$(grep -h '^stat::number_of_executed_units' "$kept"/*.log | sum)
    time=$(sum "$kept"/*.seconds)
    printf '%-16s %10d inputs %8d per second of CPU time %3d findings\n' \
        "$target" "$inputs" $((inputs / (time > 0 ? time : 1))) "$findings"
    all_findings=$((all_findings + findings))
done
if [ "$all_findings" -gt 0 ]; then
    echo "The findings are in build/fuzz/kept/TARGET/findings, their logs are build/fuzz/kept/TARGET/*.log." >&2
    exit 1
fi
