#!/usr/bin/env bash
# Runs one of the programs that torture the window on virtual displays: torture.sh foreign|kills|locks|clumsy FOLDER PROGRAM
# [AMOUNT] [SEED]. FOLDER holds the torturers. AMOUNT is a count, or seconds as "60s"; without it hours.
set -u
. "$(dirname "$0")/../../tests/acceptance/display.sh"
fail() { echo "FAILED: $1"; }
needs Xvfb openbox xprop
kind="$1"
folder="$2"
program="$3"
shift 3
start_display 1366x768
if [ "$kind" = locks ]; then
  first="$DISPLAY"
  firstWork="$work"
  start_display 1366x768
  rm -rf "$firstWork"
  DISPLAY="$first" "$folder/torture_locks" "$program" "$DISPLAY" "$@"
else
  "$folder/torture_$kind" "$program" "$@"
fi
