#!/usr/bin/env bash
# Records a real game once more in the program's window, with real clicks and keys, and checks that the same game comes out:
# replay.sh DRIVER PROGRAM GAME.GAM [--keys] [--size 1366x768] [--french] [--pictures FOLDER] \
#   [--share PORT [--halts N]]
set -u
. "$(dirname "$0")/../../tests/acceptance/display.sh"
fail() { echo "FAILED: $1"; }
needs Xvfb openbox xprop
driver="$1"
shift
size=1366x768
words=()
while [ $# -gt 0 ]; do
  if [ "$1" = --size ]; then
    size="$2"
    shift
  else
    words+=("$1")
  fi
  shift
done
start_display "$size"
"$driver" "${words[@]}"
