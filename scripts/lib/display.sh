# shellcheck shell=bash
# The virtual displays of this tree, one for each value of QV_WINE_SHARD. Needs lib/common.sh and lib/prefix.sh.

readonly DISPLAY_SIZE=2560x1440x24
readonly DISPLAY_START_TRIES=100 # of 0.1 s

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

stop_display() {
    local number pid
    [[ -f $1 ]] || return 0
    read -r number pid <"$1" || return 0
    if is_display_server "$pid"; then
        kill "$pid" 2>/dev/null || true
    fi
    rm -f "$1" "$1.number"
}
