#!/usr/bin/env bash
# Everything that must hold, from a bare Debian 12 to the last test: packages, build with warnings as errors, format,
# lint, short fuzzing, all tests. The second run builds and lints only what changed. Leaves no process behind.
#   scripts/test.sh [CTEST-ARGUMENT...]     e.g. scripts/test.sh -R framework
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
for part in common packages build prefix display shards checks fuzz; do
    # shellcheck source=/dev/null
    source "$here/lib/$part.sh"
done

readonly FUZZ_CI_SECONDS=30 # each target

problems=()

# A check that fails does not stop the others: one run shows all there is to mend.
step() {
    local name=$1 start=$SECONDS
    shift
    say "$name"
    "$@" || problems+=("$name")
    say "$name: $((SECONDS - start)) s"
}

run_ctest() {
    unset DISPLAY # the tests' own displays, whatever the machine has
    local log=$QV_BUILD/ctest.log status=0
    ctest --test-dir "$QV_BUILD/mingw" -j "$(jobs_wanted)" --output-on-failure "$@" 2>&1 | tee "$log" || status=$?
    return "$status"
}

# The closing line, from ctest's own summary.
print_counts() {
    awk '/tests passed,.*tests failed out of/ { failed = $4; total = $NF }
         END { printf "%d passed, %d failed\n", total - failed, failed }' "$QV_BUILD/ctest.log"
}

main() {
    need_packages "${BUILD_PACKAGES[@]}" "${RUN_PACKAGES[@]}" "${CHECK_PACKAGES[@]}" "${ZIP_PACKAGES[@]}"
    wine_stop_at_exit
    say "build"
    build_tree mingw || die "the build failed"
    step "format" check_format
    step "shell scripts" check_shell
    step "lint" check_lint
    step "fuzzing" fuzz_all "$FUZZ_CI_SECONDS"
    step "tests" run_ctest "$@"
    ((${#problems[@]} == 0)) || printf 'failed: %s\n' "${problems[@]}"
    print_counts
    ((${#problems[@]} == 0))
}

main "$@"
