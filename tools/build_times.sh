#!/usr/bin/env bash
# Measures what building and testing cost from nothing: no ccache, a fresh clone of what is committed, in a folder that goes
# afterwards. Prints the table of CONTRIBUTING.md. Takes as long as it says; nothing else should run meanwhile.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
git clone -q "$root" "$folder/hooptab"
cd "$folder/hooptab"
export CCACHE_DISABLE=1 HOOPTAB_SHARED="${HOOPTAB_SHARED:-$root/../shared}"
export LSAN_OPTIONS="suppressions=$PWD/tests/support/leaks.txt:print_suppressions=0"

# measure WHAT COMMAND...: a row with the minutes and seconds it took.
measure() {
  local what=$1 start=$SECONDS taken
  shift
  if ! "$@" >"$folder/log" 2>&1; then
    tail -n 30 "$folder/log" >&2
    exit 1
  fi
  taken=$((SECONDS - start))
  printf '| %s | %d min %02d s |\n' "$what" $((taken / 60)) $((taken % 60))
}
build() { cmake --preset "$1" && cmake --build --preset "$1"; }
edit() {
  echo >>src/game/Tally.cpp
  cmake --build --preset asan --target game_tests && build/asan/bin/game_tests
}

echo "Measured at $(git rev-parse --short HEAD), $(nproc) cores, $(c++ -dumpfullversion):"
echo
echo '| what | time |'
echo '| --- | ---: |'
measure 'the program (`./run.sh`)' build release
measure 'everything under sanitizers (`./test.sh`)' build asan
measure 'every test' ctest --preset asan -j 2
measure 'a core file edited, to its tests run again' edit
