#!/usr/bin/env bash
# Holds the tree to its layers: includes point downwards only, windows of different subsystems do not include each other, and no
# pure file includes Qt. Prints each line that breaks a rule; exit status 1 when there is any.
set -u
cd "$(dirname "$0")/../../src" || exit 1

# From the ground floor up; folders on one line may not include each other.
floors=(
  "resources"
  "storage"
  "appearance"
  "game"
  "teams"
  "setup live scorecard manual"
  "season"
  "printing"
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

# What is listed under CORE must do without Qt.
for list in */CMakeLists.txt; do
  folder=$(dirname "$list")
  for source in $(tr '\n' ' ' <"$list" | grep -oE 'CORE[^)]*' | sed 's/WINDOWS.*//' | grep -oE '[A-Za-z0-9_]+\.cpp'); do
    for file in "$folder/$source" "$folder/${source%.cpp}.h"; do
      [ -f "$file" ] || continue
      if grep -nE '#include <(Q|Qt)' "$file"; then
        complain "$file is of the core and includes Qt"
      fi
    done
  done
done
[ "$broken" -eq 0 ] && echo "The layers hold."
exit "$broken"
