#!/usr/bin/env bash
# Runs a PE program under Wine, on this tree's own prefix and display, and hands back its exit code.
#   scripts/run-pe.sh build/mingw/tests/windows_driver.exe --gtest_list_tests
#
# ctest says what it runs in QV_TEST_RUN=KIND:STAGE. STAGE: the tree whose DLLs are used; the sanitizer builds have
# their own. KIND window: the program has one of two displays for itself as long as it runs. Both kinds: the heap's
# own checks are on, which cost nothing that can be seen.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
if [[ -n ${QV_TEST_RUN:-} ]]; then
    export QV_STAGE=${QV_TEST_RUN#*:} WINEDEBUG=${WINEDEBUG:--all,err+heap,warn+heap}
fi
for part in common prefix display shards; do
    # shellcheck source=/dev/null
    source "$here/lib/$part.sh"
done

(($# > 0)) || die "usage: scripts/run-pe.sh PROGRAM.exe [ARGUMENT...]"
if [[ ${QV_TEST_RUN:-} == window:* ]]; then
    run_on_free_shard "$@"
else
    wine_ready
    exec "$WINE_LOADER" "$@"
fi
