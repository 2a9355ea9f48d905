#!/usr/bin/env bash
# Runs a PE program under Wine, on this tree's own prefix and display, and hands back its exit code.
#   scripts/run-pe.sh build/mingw/tests/qv_support_test.exe --gtest_list_tests
# With QV_WINE_SHARDS=N the program has one of N displays for itself as long as it runs: tests with windows may then
# run side by side.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=scripts/lib/common.sh
source "$here/lib/common.sh"
# shellcheck source=scripts/lib/wine.sh
source "$here/lib/wine.sh"

(($# > 0)) || die "usage: scripts/run-pe.sh PROGRAM.exe [ARGUMENT...]"
if [[ -z ${QV_WINE_SHARDS:-} ]]; then
    wine_ready
    exec "$WINE_LOADER" "$@"
fi
run_on_free_shard "$@"
