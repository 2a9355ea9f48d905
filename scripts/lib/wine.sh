# shellcheck shell=bash
# The test machine for PE programs: a Wine prefix, a window server and a virtual display, all of this tree's own
# and all below build/wine. Needs lib/common.sh.
#
#   QV_WINE_SHARD   0 (default), 1, 2 ...: each number has a prefix and a display of its own, so that window
#                   tests of different numbers may run at the same time
#   QV_WINE_SMOOTH  1: the prefix with font smoothing, for pictures in the documents

readonly WINE_LOADER=/usr/lib/wine/wine64
readonly WINE_SETUP_VERSION=1
readonly DISPLAY_SIZE=2560x1440x24
readonly DISPLAY_START_TRIES=100 # of 0.1 s
readonly TEST_SHARDS=2           # more than processors do not pay

WINE_HOME=$QV_BUILD/wine

wine_prefix_name() {
    local name=prefix
    [[ ${QV_WINE_SHARD:-0} == 0 ]] || name+=-$QV_WINE_SHARD
    [[ ${QV_WINE_SMOOTH:-0} == 0 ]] || name+=-smooth
    printf '%s' "$name"
}

# One locale for everything that runs in a prefix: a change of it makes Wine rewrite its font entries.
wine_environment() {
    [[ -n ${XAUTHORITY:-} || ! -f ${HOME:-/}/.Xauthority ]] || export XAUTHORITY=$HOME/.Xauthority
    export HOME=$WINE_HOME/home
    # bash itself cannot use a locale folder named this late, and says so.
    { export LOCPATH=$WINE_HOME/locale LC_ALL=zh_CN.UTF-8 LANG=zh_CN.UTF-8; } 2>/dev/null
    export FONTCONFIG_FILE=$WINE_HOME/fonts.conf
    export WINEPREFIX=$WINE_HOME/$(wine_prefix_name)
    export WINEARCH=win64 WINELOADER=$WINE_LOADER WINESERVER=/usr/lib/wine/wineserver64
    export WINEDEBUG=${WINEDEBUG:--all}
    export WINEDLLOVERRIDES='mscoree=;mshtml=;winemenubuilder.exe='
    WINEPATH="$(windows_path "$QV_STAGE/bin");$(windows_path "$(mingw_runtime_dir)")"
    export WINEPATH+=";$(windows_path /usr/x86_64-w64-mingw32/lib)"
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
        "$WINESERVER" -k 9>&- || true
        rm -rf "$prefix"
        mkdir -p "$prefix" "$HOME"
        "$WINE_LOADER" wineboot --init >"$WINE_HOME/wineboot.log" 2>&1 </dev/null 9>&- ||
            die "wineboot failed, see $WINE_HOME/wineboot.log"
        import_registry "$QV_ROOT/scripts/lib/wine-prefix.reg"
        # The registry is written when the server ends.
        "$WINESERVER" -k 9>&- && "$WINESERVER" -w 9>&- || true
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
    "$WINESERVER" -k 9>&- && "$WINESERVER" -w 9>&- || true
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

display_file() { printf '%s/display-%s' "$WINE_HOME" "${QV_WINE_SHARD:-0}"; }

# $1: process id. The number may have gone to another program since; a dead process has no command line.
is_display_server() { [[ $(tr '\0' ' ' 2>/dev/null <"/proc/$1/cmdline") == Xvfb\ * ]]; }

display_alive() {
    local number pid
    [[ -f $(display_file) ]] && read -r number pid <"$(display_file)" && is_display_server "$pid" &&
        [[ -S /tmp/.X11-unix/X$number ]]
}

# The X server picks a free number itself, so several trees on one machine never meet.
start_display() {
    local number_file tries=0 pid
    number_file=$(display_file).number
    : >"$number_file"
    setsid Xvfb -displayfd 7 -screen 0 "$DISPLAY_SIZE" -dpi 96 -noreset -nolisten tcp \
        7>"$number_file" >"$WINE_HOME/xvfb.log" 2>&1 </dev/null 9>&- &
    pid=$!
    disown "$pid"
    until [[ -s $number_file ]]; do
        ((++tries <= DISPLAY_START_TRIES)) || die "Xvfb does not start, see $WINE_HOME/xvfb.log"
        kill -0 "$pid" 2>/dev/null || die "Xvfb ended, see $WINE_HOME/xvfb.log"
        sleep 0.1
    done
    printf '%s %s\n' "$(<"$number_file")" "$pid" >"$(display_file)"
}

use_display() {
    local number pid
    [[ -z ${DISPLAY:-} ]] || return 0
    if ! display_alive; then
        stop_server "$WINEPREFIX" # its desktop went with the display
        start_display
    fi
    read -r number pid <"$(display_file)"
    export DISPLAY=:$number QV_DISPLAY_PROCESS=$pid # benchmarks count its processor time, too
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
        ((++tries <= DISPLAY_START_TRIES)) || die "the desktop of $WINEPREFIX does not come up"
        sleep 0.1
    done
}

# Everything a PE program needs, ready afterwards; quick when it is already there.
wine_ready() {
    [[ -x $WINE_LOADER ]] || die "Wine is missing; run scripts/setup.sh"
    mkdir -p "$WINE_HOME/home"
    wine_environment
    exec 9>"$WINE_HOME/lock"
    flock 9
    make_locale
    [[ -f $FONTCONFIG_FILE ]] || make_font_list
    use_display
    make_prefix
    start_server
    flock -u 9
    exec 9>&-
}

# Runs a program while no other one of this kind runs on its display: focus, mouse and clipboard are one for all.
# The lock stays with this shell and not with the program, whose children may outlive it.
run_on_free_shard() {
    local shard
    mkdir -p "$WINE_HOME"
    while :; do
        for ((shard = 0; shard < TEST_SHARDS; ++shard)); do
            exec 8>"$WINE_HOME/shard-$shard.lock"
            if flock -n 8; then
                QV_WINE_SHARD=$shard wine_ready 8>&-
                "$WINE_LOADER" "$@" 8>&-
                return
            fi
        done
        sleep 0.05
    done
}

# $1: prefix folder
stop_server() {
    [[ -d $1 ]] || return 0
    WINEPREFIX=$1 /usr/lib/wine/wineserver64 -k 2>/dev/null 9>&- || true
    WINEPREFIX=$1 /usr/lib/wine/wineserver64 -w 2>/dev/null 9>&- || true
}

stop_display() {
    local number pid
    [[ -f $1 ]] || return 0
    read -r number pid <"$1" || return 0
    if is_display_server "$pid"; then
        kill "$pid" 2>/dev/null || true
    fi
    rm -f "$1" "$1.number"
}

# Ends every server and display of this tree and nothing else.
wine_stop_all() {
    local it
    for it in "$WINE_HOME"/prefix*; do
        stop_server "$it"
    done
    for it in "$WINE_HOME"/display-?; do
        stop_display "$it"
    done
}

# For scripts that must leave nothing running, however they end.
wine_stop_at_exit() { trap wine_stop_all EXIT; }
