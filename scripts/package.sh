#!/usr/bin/env bash
# Builds from nothing and packs what a host needs: build/QVCommonWnd-VERSION-win64.zip, and the symbols of its DLLs in
# a second package. The same sources make the same bytes.
#   scripts/package.sh            one of each
#   scripts/package.sh --twice    two, each built without a cache in a folder of its own, which must be the same
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
for part in common packages build package; do
    # shellcheck source=/dev/null
    source "$here/lib/$part.sh"
done

make_packages() {
    local work=$PACKAGE_BUILD/packages name
    name=$(package_name)
    rm -rf "$PACKAGE_BUILD"
    build_tree package qv_runnable || die "the build failed"
    lay_out_package "$work/$name"
    mkdir -p "$work/$name-symbols"
    cp -a "$PACKAGE_BUILD/symbols/." "$work/$name-symbols"
    pack "$work/$name"
    pack "$work/$name-symbols"
}

# $1: folder. A copy of the sources there, without what git ignores, and the packages built from it.
make_packages_in() {
    mkdir -p "$1"
    (cd "$QV_ROOT" && git ls-files -z --cached --others --exclude-standard | tar -c --null -T - ) | tar -x -C "$1"
    CCACHE_DISABLE=1 SOURCE_DATE_EPOCH=$(stamp_of_sources) "$1/scripts/package.sh"
}

compare_packages() {
    local work=$QV_BUILD/twice name zip status=0
    name=$(package_name)
    rm -rf "$work"
    make_packages_in "$work/one"
    make_packages_in "$work/in/another/folder"
    for zip in "$name.zip" "$name-symbols.zip"; do
        cmp "$work/one/build/$zip" "$work/in/another/folder/build/$zip" || status=1
    done
    ((status == 0)) || die "two builds of the same sources differ; both stand in $work"
    say "both builds made the same packages"
    rm -rf "$work"
}

need_packages "${BUILD_PACKAGES[@]}" "${ZIP_PACKAGES[@]}"
case ${1:-} in
'') make_packages ;;
--twice) compare_packages ;;
*) die "usage: scripts/package.sh [--twice]" ;;
esac
