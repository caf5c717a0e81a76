#!/usr/bin/env bash
# Prints which rooms include which, from the includes as they are, in graphviz's language. The picture of docs/architecture.md:
#   tools/rooms.sh | tee docs/pictures/rooms.dot | tred | dot -Tsvg -o docs/pictures/rooms.svg
set -euo pipefail
cd "$(dirname "$0")/../src"

echo 'digraph rooms {'
echo '  nodesep=0.25; ranksep=0.4;'
echo '  node [shape=box, style="rounded,filled", fillcolor="#EEF1F6", color="#5B6472", fontname="Helvetica", fontsize=12];'
echo '  edge [color="#5B6472", arrowsize=0.6];'
for folder in */; do
  room=${folder%/}
  echo "  $room;"
  { grep -hoE '#include "[a-z]+/' "$folder"*.h "$folder"*.cpp 2>/dev/null || true; } | sed -E 's/.*"([a-z]+)\//\1/' | sort -u |
    while read -r other; do
      [ "$other" = "$room" ] || [ ! -d "$other" ] || echo "  $room -> $other;"
    done
done
echo '}'
