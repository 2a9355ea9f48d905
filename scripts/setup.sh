#!/usr/bin/env bash
# Installs what building, running and checking need, by Debian package name (Debian 12). Does nothing when all of
# it is there.
#   scripts/setup.sh [all|run]     run: without the checkers
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
for part in common packages; do
    # shellcheck source=/dev/null
    source "$here/lib/$part.sh"
done

case ${1:-all} in
run) need_packages "${BUILD_PACKAGES[@]}" "${RUN_PACKAGES[@]}" ;;
all) need_packages "${BUILD_PACKAGES[@]}" "${RUN_PACKAGES[@]}" "${CHECK_PACKAGES[@]}" "${ZIP_PACKAGES[@]}" ;;
*) die "usage: scripts/setup.sh [all|run]" ;;
esac
