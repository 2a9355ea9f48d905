# shellcheck shell=bash
# Debian packages by what they are needed for. Needs lib/common.sh.
# shellcheck disable=SC2034 # the lists are for the scripts that source this file

readonly BUILD_PACKAGES=(cmake ninja-build ccache g++-mingw-w64-x86-64-posix googletest librsvg2-bin python3)
readonly RUN_PACKAGES=(wine64 fonts-wine fonts-liberation fonts-wqy-microhei xvfb locales xdotool)
readonly CHECK_PACKAGES=(clang-19 clang-tidy-19 libclang-rt-19-dev clang-format cppcheck shellcheck python3 git)
readonly BENCH_PACKAGES=(dpkg-dev python3)
readonly ZIP_PACKAGES=(zip unzip)

package_installed() {
    [[ $(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null) == installed ]]
}

missing_packages() {
    local name
    for name in "$@"; do
        package_installed "$name" || printf '%s\n' "$name"
    done
}

# Installs what of the named packages is missing; asks the network only then.
need_packages() {
    local missing
    mapfile -t missing < <(missing_packages "$@")
    ((${#missing[@]} > 0)) || return 0
    [[ $(id -u) == 0 ]] ||
        die "these Debian packages are missing; as root: apt-get update && apt-get install ${missing[*]}"
    say "installing ${missing[*]}"
    export DEBIAN_FRONTEND=noninteractive
    apt-get -qq update || warn "apt-get update failed; trying with the lists that are there"
    apt-get -qq -y --no-install-recommends install "${missing[@]}" >/dev/null ||
        die "cannot install ${missing[*]}"
}
