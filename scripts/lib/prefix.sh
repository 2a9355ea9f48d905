# shellcheck shell=bash
# The Wine prefixes that PE programs run in, and their servers: all of this tree's own and all below build/wine.
# Needs lib/common.sh.
#
#   QV_WINE_SHARD   0 (default), 1, 2 ...: each number has a prefix of its own
#   QV_WINE_SMOOTH  1: the prefix with font smoothing, for pictures in the documents
#
# Whoever calls make_prefix or start_server holds a lock on descriptor 9, which no process that stays may inherit.

readonly WINE_LOADER=/usr/lib/wine/wine64
readonly WINE_SERVER=/usr/lib/wine/wineserver64
readonly WINE_SETUP_VERSION=1
readonly DESKTOP_START_TRIES=100 # of 0.1 s

WINE_HOME=$QV_BUILD/wine

wine_prefix_name() {
    local name=prefix
    [[ ${QV_WINE_SHARD:-0} == 0 ]] || name+=-$QV_WINE_SHARD
    [[ ${QV_WINE_SMOOTH:-0} == 0 ]] || name+=-smooth
    printf '%s' "$name"
}

# One locale for everything that runs in a prefix: a change of it makes Wine rewrite its font entries.
wine_environment() {
    # The user's own display asks for a file in the home folder, which is another one from here on.
    [[ -n ${XAUTHORITY:-} || ! -f ${HOME:-/}/.Xauthority ]] || export XAUTHORITY=$HOME/.Xauthority
    export HOME=$WINE_HOME/home
    # bash itself cannot use a locale folder named this late, and says so.
    { export LOCPATH=$WINE_HOME/locale LC_ALL=zh_CN.UTF-8 LANG=zh_CN.UTF-8; } 2>/dev/null
    export FONTCONFIG_FILE=$WINE_HOME/fonts.conf
    WINEPREFIX=$WINE_HOME/$(wine_prefix_name)
    export WINEPREFIX WINEARCH=win64 WINELOADER=$WINE_LOADER WINESERVER=$WINE_SERVER
    export WINEDEBUG=${WINEDEBUG:--all}
    export WINEDLLOVERRIDES='mscoree=;mshtml=;winemenubuilder.exe='
    WINEPATH="$(windows_path "$QV_STAGE/bin");$(windows_path "$(mingw_runtime_dir)")"
    WINEPATH+=";$(windows_path /usr/x86_64-w64-mingw32/lib)"
    export WINEPATH
}

# The folder with libstdc++-6.dll, for programs that run before anything was staged.
mingw_runtime_dir() {
    local dirs=(/usr/lib/gcc/x86_64-w64-mingw32/*-posix)
    printf '%s' "${dirs[-1]}"
}

# Chinese locale without touching the system's own list of locales.
make_locale() {
    [[ -d $WINE_HOME/locale/zh_CN.UTF-8 ]] && return 0
    mkdir -p "$WINE_HOME/locale"
    localedef -i zh_CN -f UTF-8 "$WINE_HOME/locale/zh_CN.UTF-8" ||
        die "cannot make the zh_CN.UTF-8 locale (Debian package: locales)"
}

# Only these font folders exist for Wine: texts look the same whatever else the machine has installed.
make_font_list() {
    mkdir -p "$WINE_HOME/font-cache"
    cat >"$WINE_HOME/fonts.conf" <<CONF
<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "fonts.dtd">
<fontconfig>
  <dir>/usr/share/fonts/truetype/liberation</dir>
  <dir>/usr/share/fonts/truetype/wqy</dir>
  <dir>/usr/share/wine/fonts</dir>
  <cachedir>$WINE_HOME/font-cache</cachedir>
</fontconfig>
CONF
}

# What a finished prefix must have been made from; another value means that it is made again.
wine_prefix_stamp() {
    printf '%s %s %s\n' "$WINE_SETUP_VERSION" "$(stat -c %Y-%s "$WINE_LOADER")" \
        "$(sha256sum <"$QV_ROOT/scripts/lib/wine-prefix.reg")"
}

# $1: registry text in UTF-8. The registry editor wants UTF-16 with a byte order mark to take Chinese names.
import_registry() {
    local wide=$WINE_HOME/import.reg
    { printf '\xff\xfe' && iconv -f UTF-8 -t UTF-16LE "$1"; } >"$wide"
    "$WINE_LOADER" regedit /S "$(windows_path "$wide")" >/dev/null 2>&1 </dev/null 9>&-
}

make_base_prefix() {
    local prefix=$WINE_HOME/prefix
    [[ -f $prefix/.qv-stamp && $(<"$prefix/.qv-stamp") == "$(wine_prefix_stamp)" ]] && return 0
    say "making the Wine prefix (once)" >&2
    (
        unset QV_WINE_SHARD QV_WINE_SMOOTH
        wine_environment
        stop_server "$prefix"
        rm -rf "$prefix"
        mkdir -p "$prefix" "$HOME"
        "$WINE_LOADER" wineboot --init >"$WINE_HOME/wineboot.log" 2>&1 </dev/null 9>&- ||
            die "wineboot failed, see $WINE_HOME/wineboot.log"
        import_registry "$QV_ROOT/scripts/lib/wine-prefix.reg"
        stop_server "$prefix" # the registry is written when the server ends
    )
    wine_prefix_stamp >"$prefix/.qv-stamp"
    rm -rf "$prefix"-*
}

smooth_fonts() {
    cat >"$WINE_HOME/smooth.reg" <<'REG'
Windows Registry Editor Version 5.00

[HKEY_CURRENT_USER\Control Panel\Desktop]
"FontSmoothing"="2"
"FontSmoothingType"=dword:00000001
REG
    import_registry "$WINE_HOME/smooth.reg"
    stop_server "$WINEPREFIX"
}

# Other prefixes are copies of the first, which is 20 times quicker than making one.
make_prefix() {
    make_base_prefix
    [[ -f $WINEPREFIX/.qv-stamp ]] && return 0
    [[ ! -S ${WINEPREFIX}/socket ]] || die "$WINEPREFIX is in use"
    stop_server "$WINE_HOME/prefix"
    cp -a "$WINE_HOME/prefix" "$WINEPREFIX.new"
    mv "$WINEPREFIX.new" "$WINEPREFIX"
    [[ ${QV_WINE_SMOOTH:-0} == 0 ]] || smooth_fonts
}

make_desktop_keeper() {
    local source=$QV_ROOT/scripts/lib/desktop_keeper.cpp program=$WINE_HOME/desktop_keeper.exe
    [[ ! $program -nt $source ]] || return 0
    x86_64-w64-mingw32-g++-posix -O1 -mwindows -static "$source" -o "$program"
}

# A server that stays makes a process start ten times quicker. It refuses when one is already there.
start_server() {
    "$WINESERVER" -p >/dev/null 2>&1 </dev/null 9>&- || return 0
    make_desktop_keeper
    # Services that programs need are started here, not by whoever comes first and has its output read.
    "$WINE_LOADER" wineboot >/dev/null 2>&1 </dev/null 9>&- || true
    local ready=$WINEPREFIX/.qv-desktop tries=0
    rm -f "$ready"
    setsid "$WINE_LOADER" "$(windows_path "$WINE_HOME/desktop_keeper.exe")" "$(windows_path "$ready")" \
        >/dev/null 2>&1 </dev/null 9>&- &
    disown
    until [[ -f $ready ]]; do
        ((++tries <= DESKTOP_START_TRIES)) || die "the desktop of $WINEPREFIX does not come up"
        sleep 0.1
    done
}

# $1: prefix folder. Returns when its server has ended and written the registry.
stop_server() {
    [[ -d $1 ]] || return 0
    WINEPREFIX=$1 "$WINE_SERVER" -k 2>/dev/null 9>&- || true
    WINEPREFIX=$1 "$WINE_SERVER" -w 2>/dev/null 9>&- || true
}
