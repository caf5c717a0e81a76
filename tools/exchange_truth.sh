#!/usr/bin/env bash
# Imports games of other systems from folders of real files (one folder for each system, as ../shared/exchange) and prints, game by game,
# how many of their official numbers were held against ours and which differ; then the sums, and the time of it all.
#   tools/exchange_truth.sh hooptab-cli FOLDER...
set -euo pipefail
[ $# -ge 2 ] || { echo "usage: $0 HOOPTAB-CLI FOLDER..." >&2; exit 2; }
program=$1
shift
target=$(mktemp -d)
trap 'rm -rf "$target"' EXIT
began=$(date +%s.%N)
for folder in "$@"; do
  mkdir -p "$target/$(basename "$folder")"
  "$program" import "$folder" --to "$target/$(basename "$folder")" --lang en || true # what cannot be imported is told
done | tee "$target/report"
ended=$(date +%s.%N)
awk -v seconds="$(echo "$ended - $began" | bc)" '
  /official numbers compared: / { games++; compared += $4; differ += $6 }
  END { printf "%d games, %d official numbers compared, %d differ; %.2f s\n", games, compared, differ, seconds }
' "$target/report"
