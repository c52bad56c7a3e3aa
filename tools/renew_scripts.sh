#!/usr/bin/env bash
# Runs scripts of tests/scripts with the program of build/check, writes the lines that they are
# expected to print anew and shows what has changed, for a person to read.
#   tools/renew_scripts.sh NAME...     (no name: all)
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
program=$PWD/build/check/bin/veldox-script
[ -x "$program" ] || { echo "Please build the preset \"check\" first." >&2; exit 1; }
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cp -r tests/scripts/. "$folder"
cp -r samples "$folder/samples"
[ $# -gt 0 ] || set -- $(cd tests/scripts && ls -- *.vs | sed 's/\.vs$//')
for name in "$@"; do
  arguments=$(sed -n '1s/^# arguments: //p' "tests/scripts/$name.vs")
  # shellcheck disable=SC2086
  (cd "$folder" && "$program" --date "2026-11-21 14:05:09" $arguments "$name.vs") \
    >"$folder/new.out" || echo "$name.vs did not run to its end." >&2
  cp "$folder/new.out" "tests/scripts/$name.out"
done
git --no-pager diff --stat -- tests/scripts
git --no-pager diff -U1 -- tests/scripts
