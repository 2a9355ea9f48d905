# shellcheck shell=bash
# The fuzz targets of tests/fuzz: a native build with clang, address and undefined-behaviour sanitizers.
# Needs lib/common.sh.

FUZZ_BUILD=$QV_BUILD/fuzz

build_fuzzers() {
    [[ -f $FUZZ_BUILD/build.ninja ]] ||
        cmake -S "$QV_ROOT/tests/fuzz" -B "$FUZZ_BUILD" -G Ninja --log-level=WARNING \
            -DCMAKE_CXX_COMPILER=clang++-19
    cmake --build "$FUZZ_BUILD" -j "$(jobs_wanted)"
}

# Every source with an entry for the fuzzer has its program, which is named after the folder.
check_fuzzers() {
    local source folder status=0
    while IFS= read -r source; do
        folder=$(dirname "${source#"$QV_ROOT/tests/"}")
        [[ -x $FUZZ_BUILD/bin/${folder//\//_} ]] && continue
        warn "no program is built of ${source#"$QV_ROOT/"}"
        status=1
    done < <(grep -rl --include='*.cpp' LLVMFuzzerTestOneInput "$QV_ROOT/tests/fuzz")
    return "$status"
}

# $1: target, $2: seconds. New inputs are kept below build/ and used again; what breaks is kept as a file.
fuzz_one() {
    local program=$1 seconds=$2 name corpus seeds log
    name=$(basename "$program")
    corpus=$FUZZ_BUILD/corpus/$name
    seeds=$QV_ROOT/tests/${name//_//}/seeds # the program is named after its folder
    log=$FUZZ_BUILD/$name.log
    mkdir -p "$corpus" "$FUZZ_BUILD/findings"
    [[ -d $seeds ]] || seeds=
    if "$program" -max_total_time="$seconds" -timeout=5 -rss_limit_mb=1024 -malloc_limit_mb=32 -print_final_stats=1 \
        -artifact_prefix="$FUZZ_BUILD/findings/$name-" "$corpus" ${seeds:+"$seeds"} >"$log" 2>&1; then
        printf '%s: %s runs, no finding\n' "$name" "$(awk '/number_of_executed_units/ { print $2 }' "$log")"
    else
        printf '%s: FAILED\n' "$name"
        tail -n 40 "$log"
        return 1
    fi
}

# $1: seconds each target runs. As many targets at a time as there are processors.
fuzz_all() {
    local seconds=$1 status=0
    build_fuzzers || return 1
    check_fuzzers || return 1
    export -f fuzz_one
    export FUZZ_BUILD
    # shellcheck disable=SC2016 # the words are the inner shell's
    find "$FUZZ_BUILD/bin" -type f -executable -print0 | sort -z |
        xargs -0 -r -P "$(jobs_wanted)" -I{} bash -c 'fuzz_one "$1" "$2"' _ {} "$seconds" || status=1
    return "$status"
}
