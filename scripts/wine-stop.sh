#!/usr/bin/env bash
# Ends the window server and the virtual displays that this tree has started; other trees keep theirs.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=scripts/lib/common.sh
source "$here/lib/common.sh"
# shellcheck source=scripts/lib/wine.sh
source "$here/lib/wine.sh"

wine_stop_all
