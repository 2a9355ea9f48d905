#!/usr/bin/env bash
# The lists of source packages that scripts/lib/source-package.sh makes of a machine's lists, in both forms.
set -euo pipefail
scripts=$(cd "$(dirname "${BASH_SOURCE[0]}")/../../../scripts" && pwd)
for part in common source-package; do
    # shellcheck source=/dev/null
    source "$scripts/lib/$part.sh"
done

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/parts" "$work/made"

cat >"$work/sources.list" <<'LIST'
# deb http://off.example/debian stable main
deb cdrom:[Disc]/ stable main
deb http://one.example/debian stable main contrib
deb-src http://one.example/debian stable main contrib
  deb [arch=amd64 signed-by=/keys/two.gpg] http://two.example/debian stable main # near
LIST
three='URIs: http://three.example/debian
Suites: stable stable-updates
Components: main
Signed-By:
 -----BEGIN PGP PUBLIC KEY BLOCK-----
 .
 -----END PGP PUBLIC KEY BLOCK-----'
four='URIs: http://four.example/debian
Suites: ./'
printf '%s\n' '# Three' 'Types: deb' '# a comment inside a stanza' "$three" '' \
    'Enabled: no' 'types: deb' ' deb-src' "$four" >"$work/parts/three.sources"
echo 'deb http://five.example/debian stable main' >"$work/parts/five.list"
echo 'deb http://six.example/debian stable main' >"$work/parts/six.list.disabled"
write_source_lists "$work/sources.list" "$work/parts" "$work/made"

expect() {
    diff -u --label expected - --label "$1" "$work/made/$1" || die "$1 is not as expected"
}
expect main.list <<'LIST'
deb-src http://one.example/debian stable main contrib
deb-src [arch=amd64 signed-by=/keys/two.gpg] http://two.example/debian stable main # near
LIST
expect part-three.sources < <(printf '%s\n' 'Types: deb-src' "$three" '' 'Enabled: no' 'Types: deb-src' "$four")
expect part-five.list <<'LIST'
deb-src http://five.example/debian stable main
LIST
[[ $(find "$work/made" -type f | wc -l) == 3 ]] || die "a list that is switched off was taken"

# A machine without one of the two places, and one without any.
rm -rf "$work/made" && mkdir "$work/made"
write_source_lists "$work/nothing" "$work/nowhere" "$work/made"
[[ -z $(ls -A "$work/made") ]] || die "a list came out of nothing"
