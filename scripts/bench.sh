#!/usr/bin/env bash
# Builds and runs every program of tests/bench and prints one table: what is ours, its peer, the ratio, the goal.
#   scripts/bench.sh [NAME-PART...]     only the programs whose names contain one of the parts
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
for part in common packages build prefix display shards source-package; do
    # shellcheck source=/dev/null
    source "$here/lib/$part.sh"
done

readonly BENCH_SOURCE=$QV_BUILD/deps/benchmark # Google Benchmark: Debian has no build of it for Windows
readonly BENCH_RESULTS=$QV_BUILD/bench-results

# $1: name, the rest: parts of names. Whether the name has one of them; no part means every name.
wanted() {
    local name=$1 part
    shift
    (($# > 0)) || return 0
    for part in "$@"; do
        [[ $name == *"$part"* ]] && return 0
    done
    return 1
}

# $1: program. What it prints goes to the log; its figures to a file of the same name.
run_program() {
    local program=$1 name
    name=$(basename "$program" .exe)
    say "$name" >&2
    "$here/run-pe.sh" "$program" --benchmark_out_format=json --benchmark_counters_tabular=true \
        "--benchmark_out=$(windows_path "$BENCH_RESULTS/$name.json")" | tee "$BENCH_RESULTS/$name.log" ||
        warn "$name ended with an error"
    run_peers "$name"
}

# Peers that are no Windows programs are timed by a script of their own, on what the program has written.
# $1: name of the program
run_peers() {
    local peers=$QV_ROOT/tests/${1//_//}/peers.sh # the program is named after its folder
    [[ -x $peers ]] || return 0
    "$peers" "$QV_BUILD/bench-peers" "$QV_BUILD/mingw/bench/$1-documents" "$BENCH_RESULTS/$1-peers.json" ||
        warn "the peers of $1 could not be timed: their rows have no ratio"
}

main() {
    need_packages "${BUILD_PACKAGES[@]}" "${RUN_PACKAGES[@]}" "${BENCH_PACKAGES[@]}"
    wine_stop_at_exit
    get_source_package benchmark "$BENCH_SOURCE"
    configure_tree mingw "-DQV_BENCHMARK_SOURCE=$BENCH_SOURCE"
    build_tree mingw all qv_benchmarks
    rm -rf "$BENCH_RESULTS"
    mkdir -p "$BENCH_RESULTS"
    local program
    for program in "$QV_BUILD"/mingw/bench/*.exe; do
        [[ -f $program ]] || die "there is no benchmark program"
        wanted "$(basename "$program" .exe)" "$@" && run_program "$program"
    done
    "$here/bench_table.py" "$BENCH_RESULTS"
}

main "$@"
