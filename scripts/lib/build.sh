# shellcheck shell=bash
# Configure and build. Needs lib/common.sh.

# $1: preset, the rest: options. Without options only an unconfigured tree is configured; the build itself notices later
# changes.
configure_tree() {
    local preset=$1
    shift
    [[ $# == 0 && -f $QV_BUILD/$preset/build.ninja ]] ||
        (cd "$QV_ROOT" && cmake --preset "$preset" -Wno-dev --log-level=WARNING "$@")
}

# $1: preset, the rest: targets (none: everything)
build_tree() {
    local preset=$1 targets=()
    shift
    (($# == 0)) || targets=(--target "$@")
    configure_tree "$preset"
    (cd "$QV_ROOT" && cmake --build --preset "$preset" -j "$(jobs_wanted)" "${targets[@]}")
}
