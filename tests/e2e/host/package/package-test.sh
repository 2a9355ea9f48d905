#!/usr/bin/env bash
# The package as a stranger meets it: unpacked in an empty folder, looked through, its samples built by what its README
# says and run.
#   package-test.sh SOURCE-FOLDER SAMPLES-TEST.exe
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
scripts=$1/scripts
samples_test=$2
for part in common package; do
    # shellcheck source=/dev/null
    source "$scripts/lib/$part.sh"
done

readonly PE=x86_64-w64-mingw32
name=$(package_name)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
sdk=$work/$name
symbols=$work/$name-symbols

# Programs and DLLs of a folder, as paths within it.
programs_of() { (cd "$1" && find . -name '*.dll' -o -name '*.exe' | sed 's|^\./||' | LC_ALL=C sort); }

check_symbols() {
    local file
    while read -r file; do
        "$PE-objdump" -t "$sdk/$file" | grep 'no symbols' >/dev/null || die "$file has its symbols"
        [[ -f $symbols/$file.debug ]] || die "there are no symbols of $file"
        "$PE-objdump" -s -j .gnu_debuglink "$sdk/$file" | grep "$(link_bytes "$symbols/$file.debug")" >/dev/null ||
            die "$file does not name its symbols' file"
    done < <(programs_of "$sdk")
    "$PE-objdump" --dwarf=decodedline "$symbols/bin/QVCommonWndU.dll.debug" | grep 'QVFileDialog.cpp' >/dev/null ||
        die "the symbols of the library have no lines"
}

# The sum of a symbols' file as the dump of a link shows it, lowest byte first. gzip's trailer begins with the same sum.
link_bytes() { gzip -c "$1" | tail -c 8 | head -c 4 | od -An -tx1 | tr -d ' \n'; }

check_no_machine_path() {
    ! grep -rlF "$QV_ROOT" "$sdk" "$symbols" || die "a path of the building machine is in the files above"
}

check_licences() {
    local file
    while read -r file; do
        grep -qF "\`$file\`" "$sdk/licences/README.md" || die "licences/README.md says nothing of $file"
    done < <(programs_of "$sdk")
}

check_headers() {
    local folder
    for folder in "$QV_ROOT"/{commonwnd,platform/*}/include; do
        ! diff -rq "$folder" "$sdk/include" | grep -v "^Only in $sdk" || die "include/ is not what the sources have"
    done
}

# $1: source folder, $2: build folder, the rest: options
configure() {
    local source=$1 build=$2
    shift 2
    cmake -G Ninja -S "$source" -B "$build" --log-level=WARNING -DCMAKE_PREFIX_PATH="$sdk" \
        -DCMAKE_TOOLCHAIN_FILE="$sdk/lib/cmake/QVCommonWnd/mingw-w64-x86-64.cmake" "$@"
}

build_sample() {
    configure "$sdk/samples/$1" "$work/build/$1"
    cmake --build "$work/build/$1" -j "$(jobs_wanted)"
}

check_versions() {
    local version
    for version in 1 1.0 1.0.0; do
        configure "$here/consumer" "$work/build/version-$version" -DWANTED="$version" >/dev/null ||
            die "version $version is not found"
    done
    for version in 0.9 1.99 2.0; do
        ! configure "$here/consumer" "$work/build/version-$version" -DWANTED="$version" >/dev/null 2>&1 ||
            die "version $version is found"
    done
}

run_samples() {
    QV_TEST_RUN=window:$sdk QV_PACKAGE=$(windows_path "$sdk") "$scripts/run-pe.sh" "$samples_test"
}

"$scripts/package.sh"
unzip -q "$QV_BUILD/$name.zip" -d "$work"
unzip -q "$QV_BUILD/$name-symbols.zip" -d "$work"
check_symbols
check_no_machine_path
check_licences
check_headers
cmake -DROOT="$sdk" -P "$QV_ROOT/tests/rules/docs/links.cmake"
check_versions
rm "$sdk/bin/QVGallery.exe"
build_sample minimal
build_sample gallery
run_samples
