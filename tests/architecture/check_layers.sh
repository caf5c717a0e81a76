#!/usr/bin/env bash
# Holds the tree to its layers: includes point downwards only, and rooms of one floor do not include each other. That a
# room includes no other than those its CMakeLists.txt names, and that no pure file includes Qt, the compiler holds.
# Prints each line that breaks a rule, and each room that has grown too large; exit status 1 when there is any.
set -u
cd "$(dirname "$0")/../../src" || exit 1

# From the ground floor up; folders on one line may not include each other.
floors=(
  "resources"
  "storage"
  "settings"
  "appearance"
  "court"
  "game"
  "teams checks totals foreign insight formula"
  "setup welcome forms recording catalogue scorecard simulator livedata bbgame"
  "assistant keypad manual season review"
  "events report scoreboard studies exchange extracts feed"
  "live printing publish"
  "shell"
)
floor_of() {
  local i
  for i in "${!floors[@]}"; do
    case " ${floors[$i]} " in *" $1 "*) echo "$i"; return ;; esac
  done
  echo "-1" # cli: links the core alone and may include all of it
}

broken=0
complain() {
  echo "$1"
  broken=1
}

for folder in */; do
  folder=${folder%/}
  own=$(floor_of "$folder")
  while IFS= read -r found; do
    file=${found%%:*}
    target=$(sed -E 's/.*#include "([a-z]+)\/.*/\1/' <<<"$found")
    [ "$target" = "$folder" ] && continue
    [ "$folder" = cli ] && [ "$target" != shell ] && continue
    other=$(floor_of "$target")
    if [ "$other" -lt 0 ] || [ "$other" -ge "$own" ]; then
      complain "$file includes upwards or sideways: $target"
    fi
  done < <(grep -nE '#include "[a-z]+/' "$folder"/*.h "$folder"/*.cpp 2>/dev/null)
done

most=6000 # lines: a newcomer reads a room in a day
for folder in */; do
  lines=$(cat "$folder"*.h "$folder"*.cpp 2>/dev/null | wc -l)
  [ "$lines" -le "$most" ] || complain "$folder has $lines lines: find the two subjects in it"
done
../tools/rooms.sh | cmp -s - ../docs/pictures/rooms.dot ||
  complain "docs/pictures/rooms.dot is not what the includes say: tools/rooms.sh tells how to draw it anew"
[ "$broken" -eq 0 ] && echo "The layers hold."
exit "$broken"
