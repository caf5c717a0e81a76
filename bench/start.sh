#!/usr/bin/env bash
# Start of the program to a window that stands, beside an empty QMainWindow program, in turns on the same display. Prints the
# median of each in milliseconds and their ratio. Needs DISPLAY, or Xvfb (which it then starts).
set -euo pipefail
build="${1:-$(dirname "$0")/../build/bench}"
rounds="${2:-21}"
folder=$(mktemp -d)
cleanup() {
  [ -z "${server:-}" ] || kill "$server" 2>/dev/null
  rm -rf "$folder"
}
trap cleanup EXIT
if [ -z "${DISPLAY:-}" ]; then
  Xvfb -displayfd 3 -screen 0 1366x768x24 3>"$folder/display" >/dev/null 2>&1 &
  server=$!
  for ((i = 0; i < 100; ++i)); do
    [ -s "$folder/display" ] && break
    sleep 0.1
  done
  DISPLAY=":$(cat "$folder/display")"
  export DISPLAY
fi

now() { date +%s%N; }
measure() { # prints the microseconds until the program says that its window stands
  local begin end
  begin=$(now)
  exec {output}< <("$@" 2>/dev/null)
  if ! read -r -u "$output" || [ "$REPLY" != ready ]; then
    echo "$1 did not start" >&2
    exit 1
  fi
  end=$(now)
  cat <&"$output" >/dev/null # until it has left
  exec {output}<&-
  echo $(((end - begin) / 1000))
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
