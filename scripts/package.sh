#!/usr/bin/env bash
# Packs the runnable tree: build/QVCommonWnd-VERSION-win64.zip, the same bytes for the same sources.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
for part in common packages build; do
    # shellcheck source=/dev/null
    source "$here/lib/$part.sh"
done

# The moment of the last commit stands for the time of every file.
stamp_of_sources() { git -C "$QV_ROOT" log -1 --format=%ct 2>/dev/null || printf 315532800; }

main() {
    need_packages "${BUILD_PACKAGES[@]}" "${ZIP_PACKAGES[@]}"
    build_tree mingw qv_runnable || die "the build failed"
    local version name tree
    version=$(sed -n 's/^project(QVCommonWnd VERSION \([0-9.]*\).*/\1/p' "$QV_ROOT/CMakeLists.txt")
    name=QVCommonWnd-$version-win64
    tree=$QV_BUILD/package/$name
    rm -rf "$QV_BUILD/package" "$QV_BUILD/$name.zip"
    mkdir -p "$QV_BUILD/package"
    cp -a "$QV_STAGE" "$tree"
    cp "$QV_ROOT"/README* "$QV_ROOT"/LICENSE* "$tree/" 2>/dev/null || true
    find "$tree" -exec touch -h -d "@$(stamp_of_sources)" {} +
    (cd "$QV_BUILD/package" && find "$name" -type f | LC_ALL=C sort | TZ=UTC zip -q -X -@ "$QV_BUILD/$name.zip")
    rm -rf "$QV_BUILD/package"
    say "$QV_BUILD/$name.zip"
    sha256sum "$QV_BUILD/$name.zip"
}

main "$@"
