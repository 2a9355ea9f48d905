#!/usr/bin/env bash
# Builds everything and shows the gallery, which opens every window of the library. Without a display (or with --tour)
# the gallery is taken through a tour on a virtual one: pictures and results stand in build/demo afterwards.
#   scripts/demo.sh [--tour]
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
for part in common packages build prefix display shards; do
    # shellcheck source=/dev/null
    source "$here/lib/$part.sh"
done

readonly GALLERY=$QV_STAGE/bin/QVGallery.exe
readonly TOUR=$QV_BUILD/mingw/tests/e2e_host_gallery.exe
readonly DEMO=$QV_BUILD/demo
readonly TOUR_LIMIT=600s

show_gallery() {
    export QV_WINE_SHARD=9 # a prefix that belongs to the user's display and not to a virtual one
    say "the gallery is on your display; close it to end"
    "$here/run-pe.sh" "$GALLERY"
}

# A program of its own plays the user: it starts the gallery and works every window by mouse and keyboard.
take_tour() {
    local pictures
    unset DISPLAY
    rm -rf "$DEMO"
    mkdir -p "$DEMO"
    say "the gallery takes its tour"
    QV_DEMO_PICTURES=$(windows_path "$DEMO") QV_WINE_SMOOTH=1 timeout --kill-after=10s "$TOUR_LIMIT" \
        "$here/run-pe.sh" "$TOUR" --gtest_brief=0 2>&1 | tr -d '\r' | tee "$DEMO/results.txt" ||
        die "a window did not come or returned something else, see $DEMO/results.txt"
    pictures=$(find "$DEMO" -name '*.png' -size +0 | wc -l)
    ((pictures > 0)) || die "the tour left no pictures"
    say "every window came and answered; $pictures pictures in $DEMO"
}

main() {
    need_packages "${BUILD_PACKAGES[@]}" "${RUN_PACKAGES[@]}"
    wine_stop_at_exit
    build_tree mingw qv_runnable e2e_host_gallery || die "the build failed"
    if [[ -n ${DISPLAY:-} && ${1:-} != --tour ]]; then
        show_gallery
    else
        take_tour
    fi
}

main "$@"
