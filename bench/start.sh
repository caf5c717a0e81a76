#!/usr/bin/env bash
# Start of the program to a window that stands, beside an empty QMainWindow program, in turns on the same display. Prints the
# median of each in milliseconds and their ratio. Needs DISPLAY, or Xvfb (which it then starts).
set -euo pipefail
build="${1:-$(dirname "$0")/../build/bench}"
rounds="${2:-21}"
folder=$(mktemp -d)
if [ -z "${DISPLAY:-}" ]; then
  Xvfb :97 -screen 0 1366x768x24 >/dev/null 2>&1 &
  server=$!
  trap 'kill $server 2>/dev/null; rm -rf "$folder"' EXIT
  export DISPLAY=:97
  sleep 1
else
  trap 'rm -rf "$folder"' EXIT
fi

now() { date +%s%N; }
measure() { # prints microseconds
  local begin
  begin=$(now)
  "$@" >/dev/null 2>&1
  echo $((($(now) - begin) / 1000))
}
median() { sort -n "$1" | sed -n "$((rounds / 2 + 1))p"; }

"$build/bin/hooptab" --folder "$folder" --leave-when-ready >/dev/null 2>&1 # the first start writes the settings
for ((i = 0; i < rounds; ++i)); do
  measure "$build/bin/bench_empty_window" >>"$folder/empty"
  measure "$build/bin/hooptab" --folder "$folder" --leave-when-ready >>"$folder/hooptab"
done
empty=$(median "$folder/empty")
ours=$(median "$folder/hooptab")
awk -v e="$empty" -v o="$ours" 'BEGIN { printf "empty window %.1f ms, hooptab %.1f ms, ratio %.2f\n", e / 1000, o / 1000, o / e }'
