# shellcheck shell=bash
# Where a PE program runs: a shard is a prefix with its server and a display of its own, so that window tests of
# different shards may run at the same time. Needs lib/common.sh, lib/prefix.sh and lib/display.sh.

readonly TEST_SHARDS=2 # more than processors do not pay

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
