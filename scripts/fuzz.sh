#!/usr/bin/env bash
# Throws broken input at every parser of foreign bytes, under address and undefined-behaviour sanitizers.
#   scripts/fuzz.sh            60 seconds each target
#   scripts/fuzz.sh --long     an hour each target
#   scripts/fuzz.sh SECONDS
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
for part in common packages fuzz; do
    # shellcheck source=/dev/null
    source "$here/lib/$part.sh"
done

case ${1:-60} in
--long) seconds=3600 ;;
*[!0-9]*) die "usage: scripts/fuzz.sh [--long|SECONDS]" ;;
*) seconds=${1:-60} ;;
esac
need_packages cmake ninja-build clang-19 libclang-rt-19-dev
fuzz_all "$seconds"
