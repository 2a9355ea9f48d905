# shellcheck shell=bash
# What the packages hold and how they are packed. Needs lib/common.sh.

readonly PACKAGE_BUILD=$QV_BUILD/package # a build of its own: nothing that an earlier one left gets in

package_name() {
    sed -n 's/^project(QVCommonWnd VERSION \([0-9.]*\).*/QVCommonWnd-\1-win64/p' "$QV_ROOT/CMakeLists.txt"
}

# The moment of the last commit stands for the time of every file.
stamp_of_sources() { printf '%s' "${SOURCE_DATE_EPOCH:-$(git -C "$QV_ROOT" log -1 --format=%ct)}"; }

# $1: program file of a Debian package. Prints the file that tells that package's copyright.
copyright_of() {
    local package
    package=$(dpkg-query -S "$(readlink -f "$1")") || die "no package owns $1"
    printf '/usr/share/doc/%s/copyright' "${package%%:*}"
}

# $1: DLL of the C++ run-time
runtime_file() { x86_64-w64-mingw32-g++-posix -print-file-name="$1"; }

# $1: folder to make
lay_out_licences() {
    mkdir -p "$1"
    cp "$QV_ROOT/scripts/package/licences.md" "$1/README.md"
    cp "$QV_ROOT/LICENSE" "$1/QVCommonWnd.txt"
    cp "$(copyright_of "$(runtime_file libstdc++-6.dll)")" "$1/gcc.txt"
    cp /usr/share/common-licenses/GPL-3 "$1/GPL-3.txt"
    cp "$(copyright_of "$(runtime_file libwinpthread-1.dll)")" "$1/mingw-w64.txt"
}

# $1: folder to make
lay_out_package() {
    local target=$1
    mkdir -p "$target"
    cp -a "$PACKAGE_BUILD/stage/." "$target"
    rm "$target/bin/QVMinimal.exe" # the reader's first own program
    cp -R "$QV_ROOT/host" "$target/samples"
    rm "$target/samples/CMakeLists.txt" # that of the library's own build
    cp -R "$QV_ROOT/docs" "$target/doc"
    cp "$QV_ROOT/scripts/package/README.md" "$QV_ROOT/CHANGELOG.md" "$target/"
    lay_out_licences "$target/licences"
}

# $1: folder to pack, whose name is the first part of all names. Makes build/NAME.zip, the same bytes for the same files.
pack() {
    local folder=$1 name
    name=$(basename "$folder")
    find "$folder" -type d -exec chmod 755 {} + -o -exec chmod 644 {} +
    find "$folder" -exec touch -h -d "@$(stamp_of_sources)" {} +
    rm -f "$QV_BUILD/$name.zip"
    (cd "$(dirname "$folder")" && find "$name" -type f | LC_ALL=C sort | TZ=UTC zip -q -X -@ "$QV_BUILD/$name.zip")
    (cd "$QV_BUILD" && sha256sum "$name.zip")
}
