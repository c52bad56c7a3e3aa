#!/usr/bin/env bash
# Time from start to first mapped window and resident memory, beside an empty window, on a
# virtual display. Build first: cmake --preset bench && cmake --build --preset bench
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
bin=build/bench/bin
for program in first_window empty_window veldox; do
  [ -x "$bin/$program" ] || { echo "missing: $bin/$program; build the bench preset first" >&2; exit 1; }
done
export XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-$(mktemp -d)}"
runs=${1:-10}
xvfb-run -a -s "-screen 0 1366x768x24" bash -c "
  for program in empty_window veldox empty_window veldox; do
    $bin/first_window $bin/\$program $runs
  done"
