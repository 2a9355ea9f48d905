#!/usr/bin/env bash
# The long forms of tests that run shorter by default: visits to the file dialog that must leave nothing behind, and
# random messages to its windows.
#   scripts/long-tests.sh                    200 visits, 1,000,000 messages
#   scripts/long-tests.sh VISITS MESSAGES
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
for part in common packages build prefix display shards; do
    # shellcheck source=/dev/null
    source "$here/lib/$part.sh"
done

visits=${1:-200} messages=${2:-1000000}
[[ $visits$messages =~ ^[0-9]+$ ]] || die "usage: scripts/long-tests.sh [VISITS MESSAGES]"
need_packages "${BUILD_PACKAGES[@]}" "${RUN_PACKAGES[@]}"
wine_stop_at_exit
build_tree mingw windows_commonwnd_filedialog
QV_DIALOG_VISITS=$visits QV_STORM_MESSAGES=$messages "$here/run-pe.sh" \
    "$QV_BUILD/mingw/tests/windows_commonwnd_filedialog.exe" --gtest_filter='FileDialogLife.*'
