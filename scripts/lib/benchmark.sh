# shellcheck shell=bash
# Google Benchmark, from Debian's source package: it has to be built for Windows. Needs lib/common.sh.

BENCH_SOURCE=$QV_BUILD/deps/benchmark
BENCH_RESULTS=$QV_BUILD/bench-results

# A package state of our own, so that the machine's list of sources stays as it is.
get_benchmark_source() {
    local work=$QV_BUILD/deps/apt options
    [[ ! -f $BENCH_SOURCE/CMakeLists.txt ]] || return 0
    say "fetching the source package of Google Benchmark"
    mkdir -p "$work/lists/partial" "$work/cache/archives/partial" "$work/source"
    echo "deb-src http://deb.debian.org/debian bookworm main" >"$work/sources.list"
    options=(-qq -o "Dir::Etc::SourceList=$work/sources.list" -o Dir::Etc::SourceParts=/dev/null
        -o "Dir::State::Lists=$work/lists" -o "Dir::Cache=$work/cache" -o APT::Sandbox::User=root)
    apt-get "${options[@]}" update || die "no list of source packages; is deb.debian.org reachable?"
    (cd "$work/source" && apt-get "${options[@]}" source benchmark) ||
        die "cannot fetch the source package 'benchmark'"
    mv "$work"/source/benchmark-*/ "$BENCH_SOURCE"
    rm -rf "$work"
}
