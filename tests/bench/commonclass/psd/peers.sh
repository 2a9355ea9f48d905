#!/usr/bin/env bash
# Times the ready-made readers of the npm registry on the documents that the benchmark program has written, and leaves
# the fastest of them for each document as a peer of the table.
#   tests/bench/commonclass/psd/peers.sh WORK-FOLDER DOCUMENT-FOLDER RESULT.json
# WORK-FOLDER takes the packages; it lies below build/.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
(($# == 3)) || { echo "usage: peers.sh WORK-FOLDER DOCUMENT-FOLDER RESULT.json" >&2; exit 2; }
work=$1 documents=$2 result=$3

command -v npm >/dev/null || { echo "peers.sh: npm is missing (Debian package: npm)" >&2; exit 1; }
mkdir -p "$work"
[[ -d $work/node_modules/ag-psd ]] ||
    npm install --prefix "$work" --silent --no-fund --no-audit --ignore-scripts \
        ag-psd@31.0.2 @webtoon/psd@0.4.0 psd@3.4.0
node --max-old-space-size=8192 "$here/peers.js" "$work" "$documents" "$result"
