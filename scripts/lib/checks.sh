# shellcheck shell=bash
# Checks that need no running program. Each prints what it finds and fails then. Needs lib/common.sh.

readonly MAX_SOURCE_LINES=450

check_format() {
    (cd "$QV_ROOT" && git ls-files -z --cached --others --exclude-standard '*.cpp' '*.h' |
        xargs -0 -r clang-format --dry-run -Werror)
}

# A file that has grown this long has a second class in it that wants a room of its own.
check_file_lengths() {
    local long
    long=$(cd "$QV_ROOT" && git ls-files -z '*.cpp' '*.h' | xargs -0 -r wc -l |
        awk -v max=$MAX_SOURCE_LINES '$2 != "total" && $1 > max { print $2 ": " $1 " lines" }')
    [[ -z $long ]] || {
        printf '%s\n' "$long"
        return 1
    }
}

check_shell() { (cd "$QV_ROOT" && shellcheck -x scripts/*.sh .ci/run); }

check_lint() { "$QV_ROOT/scripts/lint.py"; }
