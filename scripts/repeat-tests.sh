#!/usr/bin/env bash
# Runs the window tests again and again beside two busy processes: a test that wavers shows.
#   scripts/repeat-tests.sh N [CTEST-ARGUMENT...]     e.g. scripts/repeat-tests.sh 10 -R windows_commonctrl
# Ends with the names of the tests that fell and in how many of the rounds; the logs stay in build/repeat.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
for part in common packages build prefix display shards; do
    # shellcheck source=/dev/null
    source "$here/lib/$part.sh"
done

readonly BUSY_PROCESSES=2
readonly LOGS=$QV_BUILD/repeat

rounds=${1:-}
[[ $rounds =~ ^[1-9][0-9]*$ ]] || die "usage: scripts/repeat-tests.sh N [CTEST-ARGUMENT...]"
shift

busy=()
stop_busy() { ((${#busy[@]} == 0)) || kill "${busy[@]}" 2>/dev/null || true; }

start_busy() {
    local i
    for ((i = 0; i < BUSY_PROCESSES; ++i)); do
        while :; do :; done &
        busy+=($!)
    done
}

# $1: number of the round, rest: for ctest
run_round() {
    local log=$LOGS/round-$1.log
    shift
    ctest --test-dir "$QV_BUILD/mingw" -L window -j "$(jobs_wanted)" --output-on-failure "$@" >"$log" 2>&1
}

main() {
    local round failed=0
    need_packages "${BUILD_PACKAGES[@]}" "${RUN_PACKAGES[@]}"
    wine_stop_at_exit
    trap 'stop_busy' INT TERM
    build_tree mingw || die "the build failed"
    unset DISPLAY # the tests' own displays, whatever the machine has
    rm -rf "$LOGS"
    mkdir -p "$LOGS"
    start_busy
    for ((round = 1; round <= rounds; ++round)); do
        if run_round "$round" "$@"; then
            say "round $round of $rounds: no failure"
        else
            say "round $round of $rounds: FAILED, see $LOGS/round-$round.log"
            failed=$((failed + 1))
        fi
    done
    stop_busy
    sed -n 's/^[[:space:]]*[0-9]* - \(.*\) (\(Failed\|Timeout\|.*Exception.*\))$/\1/p' "$LOGS"/*.log | sort | uniq -c
    ((failed == 0)) || die "$failed of $rounds rounds had failures"
    say "$rounds rounds without a failure"
}

main "$@"
