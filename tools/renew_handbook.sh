#!/usr/bin/env bash
# Makes docs/handbook.md and its pictures anew from what the program of build/check holds, and
# shows what has changed in the text. "--text" leaves the pictures as they are.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. tools/packages.sh
root=$PWD
bin=$root/build/check/bin
[ -x "$bin/make_handbook" ] || die 'Please build the preset "check" first.'
new=$(mktemp)
trap 'rm -f "$new"' EXIT
"$bin/make_handbook" "$root" >"$new"
cp "$new" docs/handbook.md
chmod 644 docs/handbook.md
if [ "${1:-}" != --text ]; then
  require_packages "${DISPLAY_PACKAGES[@]}"
  mkdir -p docs/handbook
  rm -f docs/handbook/*.png
  "$bin/make_handbook" "$root" --pictures >"$new"
  (cd docs/handbook && xvfb-run -a -s "-screen 0 1366x768x24" \
    "$bin/veldox-script" --windows --date "2026-11-21 14:05:09" "$new")
fi
git --no-pager diff --stat -- docs
git --no-pager diff -U1 -- docs/handbook.md
