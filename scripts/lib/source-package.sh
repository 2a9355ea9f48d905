# shellcheck shell=bash
# Debian source packages, by the machine's own package sources. Most machines have these configured for binary packages
# only, so the same sources are asked for source packages in a package state of our own: the machine's lists stay as
# they are. Needs lib/common.sh.

# $1: a list of lines ("deb [options] URI suite component..."). Prints its lines for source packages.
source_lines() {
    sed -nE -e '/[[:space:]]cdrom:/d' -e 's/^[[:space:]]*deb(-src)?[[:space:]]+/deb-src /p' "$1" | awk '!seen[$0]++'
}

# $1: a list of stanzas ("Types: deb", "URIs: ...", ...). Prints it for source packages; all other fields stay.
source_stanzas() {
    awk '/^#/ { next }
         tolower($0) ~ /^types[ \t]*:/ { print "Types: deb-src"; inTypes = 1; next }
         inTypes && /^[ \t]+[^ \t]/ { next }
         { inTypes = 0; print }' "$1"
}

# $1: main list, $2: folder of further lists, $3: existing folder that gets a list of source packages for each.
write_source_lists() {
    local list=$1 parts=$2 target=$3 part
    [[ ! -f $list ]] || source_lines "$list" >"$target/main.list"
    for part in "$parts"/*.list; do
        [[ ! -f $part ]] || source_lines "$part" >"$target/part-$(basename "$part")"
    done
    for part in "$parts"/*.sources; do
        [[ ! -f $part ]] || source_stanzas "$part" >"$target/part-$(basename "$part")"
    done
}

# $1: source package, $2: folder that gets its sources, unless it is there already.
get_source_package() {
    local package=$1 target=$2 work=$QV_BUILD/deps/apt list='' parts='' options
    [[ ! -d $target ]] || return 0
    say "fetching the source package $package"
    rm -rf "$work"
    mkdir -p "$work/sources.d" "$work/lists/partial" "$work/cache/archives/partial" "$work/source"
    eval "$(apt-config shell list Dir::Etc::SourceList/f parts Dir::Etc::SourceParts/d)"
    write_source_lists "$list" "$parts" "$work/sources.d"
    options=(-qq -o Dir::Etc::SourceList=/dev/null -o "Dir::Etc::SourceParts=$work/sources.d"
        -o "Dir::State::Lists=$work/lists" -o "Dir::Cache=$work/cache" -o APT::Sandbox::User=root)
    apt-get "${options[@]}" update || die "the machine's package sources cannot be reached"
    (cd "$work/source" && apt-get "${options[@]}" source "$package") ||
        die "the machine's package sources have no source package '$package'"
    mv "$work/source/$package"-*/ "$target"
    rm -rf "$work"
}
