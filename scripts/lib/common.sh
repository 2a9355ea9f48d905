# shellcheck shell=bash
# What every script shares: where the tree is, how it speaks, how it gives up. Source it first.

QV_ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
QV_BUILD=$QV_ROOT/build
QV_STAGE=${QV_STAGE:-$QV_BUILD/stage} # another one for the sanitizer builds
export QV_ROOT QV_BUILD QV_STAGE

say() { printf '== %s\n' "$*"; }
warn() { printf 'warning: %s\n' "$*" >&2; }
die() {
    printf 'error: %s\n' "$*" >&2
    exit 1
}

# The path as a Windows program sees it: drive Z is the root of this file system.
windows_path() {
    local path=$1
    printf 'Z:%s' "${path//\//\\}"
}

# Number of jobs: one a processor, or what QV_JOBS says.
jobs_wanted() { printf '%s' "${QV_JOBS:-$(nproc)}"; }
