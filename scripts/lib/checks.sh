# shellcheck shell=bash
# Checks that need no running program. Each prints what it finds and fails then. Needs lib/common.sh.

check_format() {
    (cd "$QV_ROOT" && git ls-files -z --cached --others --exclude-standard '*.cpp' '*.h' |
        xargs -0 -r clang-format --dry-run -Werror)
}

check_shell() {
    (cd "$QV_ROOT" && git ls-files -z --cached --others --exclude-standard '*.sh' .ci/run | xargs -0 -r shellcheck -x)
}

check_lint() { "$QV_ROOT/scripts/lint.py"; }
