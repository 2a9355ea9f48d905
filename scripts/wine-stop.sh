#!/usr/bin/env bash
# Ends the window server and the virtual displays that this tree has started; other trees keep theirs.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
for part in common prefix display shards; do
    # shellcheck source=/dev/null
    source "$here/lib/$part.sh"
done

wine_stop_all
