#!/usr/bin/env bash
# A simulated season read cold, and once more with one game changed since the last scan and the rest in a cache, beside the
# floor (cat of the same files into wc) and two peers: GLib's GKeyFile where it was found, and a Python script with configparser.
# Page cache warm, all in one run; medians of whole processes. Then how the time grows with the number of games.
# season.sh [BUILD [GAMES [ROUNDS]]]
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
build="${1:-$here/../build/bench}"
games="${2:-10000}"
rounds="${3:-7}"
folder=$(mktemp -d "${HOOPTAB_BENCH_FOLDER:-/tmp}/hooptab-season-XXXXXX")
trap 'rm -rf "$folder"' EXIT

measure() { # FILE COMMAND...: adds the milliseconds that the command takes to a file
  local begin end
  begin=$(date +%s%N)
  "${@:2}" >"$folder/output"
  end=$(date +%s%N)
  echo $(((end - begin) / 1000)) | awk '{ print $1 / 1000 }' >>"$1"
}
median() { sort -n "$1" | sed -n "$(($(wc -l <"$1") / 2 + 1))p"; }
ratio() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.2f", a / b }'; }
# Names come in from find: ten thousand of them are more than a command line takes.
floor() { find "$1" -name '*.GAM' -print0 | xargs -0 cat | wc -l; }

"$build/bin/hooptab-simulate" season "$folder/games" --games "$games"
changed=$(find "$folder/games" -name '*.GAM' | sort | sed -n "$((games / 2))p")
find "$folder/games" -name '*.GAM' -exec touch -d '1 hour ago' {} + # what was written just now is not kept
"$build/bin/bench_season" "$folder/games" 2 "$folder/cache" >/dev/null
floor "$folder/games" >/dev/null
for ((i = 0; i < rounds; ++i)); do
  measure "$folder/floor" floor "$folder/games"
  measure "$folder/ours" "$build/bin/bench_season" "$folder/games"
  cp "$folder/output" "$folder/figures"
  touch "$changed"
  measure "$folder/cached" "$build/bin/bench_season" "$folder/games" 2 "$folder/cache"
  measure "$folder/one" "$build/bin/bench_season" "$folder/games" 1
done
base=$(median "$folder/floor")
ours=$(median "$folder/ours")
echo "$games games, $(du -sm --apparent-size "$folder/games" | cut -f1) MB, $(nproc) processors"
echo "floor (cat | wc)       $base ms"
echo "season, two threads    $ours ms, $(ratio "$ours" "$base") of the floor"
cached=$(median "$folder/cached")
echo "one game changed       $cached ms, $(ratio "$cached" "$base") of the floor"
echo "season, one thread     $(median "$folder/one") ms"
echo "  $(cat "$folder/figures")"
if "$build/bin/bench_season" "$folder/games" --gkeyfile >/dev/null 2>&1; then
  for ((i = 0; i < 3; ++i)); do measure "$folder/gkeyfile" "$build/bin/bench_season" "$folder/games" --gkeyfile; done
  echo "peer GKeyFile          $(median "$folder/gkeyfile") ms (parses only)"
fi
if command -v python3 >/dev/null; then
  measure "$folder/python" python3 "$here/season_peer.py" "$folder/games"
  echo "peer configparser      $(cat "$folder/python") ms ($(cat "$folder/output"))"
fi
echo "growth (milliseconds a thousand games, the program's start taken off):"
measure "$folder/nothing" "$build/bin/bench_season" "$here"
for ((i = 0; i < rounds; ++i)); do measure "$folder/nothing" "$build/bin/bench_season" "$here"; done
start=$(median "$folder/nothing")
for part in 100 1000 "$games"; do
  mkdir -p "$folder/part"
  find "$folder/games" -name '*.GAM' | sort | awk -v n="$part" -v all="$games" 'NR % int(all / n) == 0' | head -n "$part" |
    xargs -d '\n' ln -t "$folder/part"
  rm -f "$folder/grown"
  for ((i = 0; i < rounds; ++i)); do measure "$folder/grown" "$build/bin/bench_season" "$folder/part"; done
  median "$folder/grown" | awk -v n="$part" -v start="$start" '{ printf "  %6d games: %.1f ms\n", n, ($1 - start) * 1000 / n }'
  rm -r "$folder/part"
done
