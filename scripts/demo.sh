#!/usr/bin/env bash
# Builds everything and shows the gallery, which opens every window of the library. Without a display (or with --tour)
# the gallery takes a tour by itself on a virtual one: pictures and results stand in build/demo afterwards.
#   scripts/demo.sh [--tour]
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
for part in common packages build wine; do
    # shellcheck source=/dev/null
    source "$here/lib/$part.sh"
done

readonly GALLERY=$QV_STAGE/bin/QVGallery.exe
readonly DEMO=$QV_BUILD/demo
readonly TOUR_LIMIT=600s

show_gallery() {
    export QV_WINE_SHARD=9 # a prefix that belongs to the user's display and not to a virtual one
    say "the gallery is on your display; close it to end"
    "$here/run-pe.sh" "$GALLERY"
}

take_tour() {
    unset DISPLAY
    rm -rf "$DEMO"
    mkdir -p "$DEMO"
    say "the gallery takes its tour"
    QV_WINE_SMOOTH=1 timeout --kill-after=10s "$TOUR_LIMIT" \
        "$here/run-pe.sh" "$GALLERY" --tour "$(windows_path "$DEMO")" || die "the tour failed (exit code $?)"
}

# The tour writes a line for each window: "ok NAME: what came back" or "failed NAME: why".
check_tour() {
    local results=$DEMO/results.txt pictures
    [[ -s $results ]] || die "the tour left no results"
    tr -d '\r' <"$results"
    ! grep -q '^failed' "$results" || die "a window did not come or returned something else"
    pictures=$(find "$DEMO" -name '*.png' -size +0 | wc -l)
    ((pictures > 0)) || die "the tour left no pictures"
    say "$pictures pictures in $DEMO"
}

main() {
    need_packages "${BUILD_PACKAGES[@]}" "${RUN_PACKAGES[@]}"
    wine_stop_at_exit
    build_tree mingw || die "the build failed"
    [[ -f $GALLERY ]] || die "$GALLERY was not built"
    if [[ -n ${DISPLAY:-} && ${1:-} != --tour ]]; then
        show_gallery
    else
        take_tour
        check_tour
    fi
}

main "$@"
