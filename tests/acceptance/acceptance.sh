#!/usr/bin/env bash
# Uses the program as its user does: a window under Xvfb with a window manager, keys and mouse through xdotool. What it checks
# is what a user could see from outside: titles of windows, files on disk, and whether the program lives.
set -u
program="$1"
samples="$2"
. "$(dirname "$0")/display.sh"
needs Xvfb openbox xdotool xprop
failures=0

fail() {
  echo "FAILED: $1"
  failures=$((failures + 1))
}
window_named() { xdotool search --onlyvisible --name "$1"; }
no_window_named() { ! window_named "$1"; }
says() { grep -aq "$2" "$work/home/$1"; }
is_gone() { ! kill -0 "$1" 2>/dev/null; }

start_display 1366x768

game=$(find "$samples" -name '*.GAM' | sort | head -n 1)
other=$(find "$samples" -name '*.GAM' | sort | sed -n 2p)
abbreviation() { tr -d '\r' <"$1" | sed -n "s/^EQUIPE$2ABB=//p"; }
[ -n "$game" ] && [ -n "$other" ] || { fail "there are no sample games"; exit 1; }

# A first start makes the settings, teams and players, and opens the game of the command line.
mkdir "$work/home"
"$program" --folder "$work/home" "$game" >"$work/log" 2>&1 &
running=$!
started+=($running)
title="$(abbreviation "$game" 0) [0-9]+ - [0-9]+ $(abbreviation "$game" 1)"
until_true "the scorecard of the sample game opens" window_named "$title" || { cat "$work/log"; exit 1; }
until_true "a first start writes the settings" says CONFIG.INI 'LANGUE=0'
until_true "a first start writes the teams" says CONFIG.INI 'LYNX,AAA'

# One instance a folder: the second leaves its games to it. Without a display there is one sentence, and no window.
"$program" --folder "$work/home" "$other" >>"$work/log" 2>&1 || fail "a second instance hands its game over"
second_title="$(abbreviation "$other" 0) [0-9]+ - [0-9]+ $(abbreviation "$other" 1)"
until_true "the running one opens it" window_named "$second_title"
"$program" --folder "$work/home" "$game" >>"$work/log" 2>&1 || fail "a third instance hands its game over"
until_true "a game that is open comes to the front" window_named "$title"
is_gone "$running" && fail "the first instance lives on"
env -u DISPLAY -u WAYLAND_DISPLAY "$program" --folder "$work/home" >/dev/null 2>"$work/said"
[ $? -eq 2 ] && [ "$(wc -l <"$work/said")" -eq 1 ] || fail "one sentence and status 2 without a display"

# Of the running program alone: the window of one that ends just now has the same title.
main_window() { xdotool search --all --onlyvisible --pid "$running" --name 'HOOPTAB Basketball' | head -n 1 | grep .; }
# The search itself fails when a window goes while it looks.
keys() {
  local window
  until window=$(main_window) || is_gone "$running"; do sleep 0.1; done
  xdotool windowactivate --sync "$window" key "$@"
}

# The language switches on the fly and is on disk at once.
keys F12
until_true "the language switches to French" says CONFIG.INI 'LANGUE=4000'
keys F12
until_true "the language switches back" says CONFIG.INI 'LANGUE=0'

# The scorecard's commands by key: lines, made and attempted, refresh. None may end the program.
keys ctrl+l; keys ctrl+m; keys F5; keys ctrl+l; keys ctrl+m
# A file of another format is refused by a message, and the open game stays.
printf '[DETAILS]\r\nVERSION=1.0\r\n' >"$work/wrong.GAM"
open_by_dialog() {
  keys ctrl+o
  sleep 1
  xdotool type --delay 5 "$1"
  xdotool key Return
}
open_by_dialog "$work/wrong.GAM"
until_true "a wrong file is refused" window_named 'HOOPTAB - Error'
xdotool key Return
until_true "the refusal closes" no_window_named 'HOOPTAB - Error'
window_named "$title" >/dev/null || fail "the open game stays"

# A team with one player by keyboard: what is typed is on disk, in the record that the new team was given.
typed() { xdotool type --delay 5 "$1"; }
has_focus() { [ "$(xdotool getwindowfocus getwindowname)" = "$1" ]; }
keys ctrl+e
until_true "the teams open" window_named 'Team Management'
tabs() { for ((i = 0; i < $1; ++i)); do xdotool key "${2:-Tab}"; done; }
until_true "the teams have the focus" has_focus 'HOOPTAB Basketball - [Team Management]'
tabs 2 shift+Tab # back from the search to the button of a new team
xdotool key space
until_true "a new team is on disk" says CONFIG.INI '^7=Newteam, , ,'
sleep 1
xdotool key ctrl+a
typed 'HERONS'
xdotool key Tab
typed 'B, men'
xdotool key Return
until_true "the team is saved" says CONFIG.INI '^7=HERONS,.*B  men, ,'
tabs 15 # from the level to the number of the player
typed '23'
xdotool key Tab End Tab
typed 'Ann Able'
xdotool key Return
until_true "its player is saved" says CONFIG.INI '^23=9,Ann Able,,,,,'
keys ctrl+w
until_true "the teams close without a question" no_window_named 'Team Management'

# A game by keyboard: each team by its first letters, the file in Qt's own dialog.
keys ctrl+n
until_true "the window of a new game opens" has_focus 'New Game'
typed 'PU'
tabs 13 # to the other list
typed 'HE'
xdotool key Tab Return
until_true "the file is asked for" has_focus 'Save Game as...'
typed "$work/new.GAM"
xdotool key Return
until_true "the new game opens" window_named 'PUMA 0 - 0 HERONS'
grep -aq '^23=9,Ann Able' "$work/new.GAM" || fail "the new game has its players"
open_by_dialog "$other"
until_true "a second game opens" window_named "$(abbreviation "$other" 0) [0-9]+ - [0-9]+ $(abbreviation "$other" 1)"

# The games were only read.
tampered=$(find "$samples" -newer "$work/home/CONFIG.INI" -name '*.GAM')
[ -z "$tampered" ] || fail "reading changed $tampered"

# Leaving keeps the last folder of games of one's own, the recent games and the window's place.
keys ctrl+q
until_true "the program leaves" is_gone "$running"
until_true "the last folder is kept" says CONFIG.INI "LASTPATHGAME=$work"
until_true "recent games are kept" says WINDOWS.INI "$(basename "$other" | cut -c1-10)"
grep -aE 'AddressSanitizer|runtime error|LeakSanitizer' "$work/log" && fail "the sanitizers complain"

# A folder that cannot be written: told, and the program goes on. (For root only a missing write bit of the file counts.)
chmod 444 "$work/home/CONFIG.INI"
"$program" --folder "$work/home" >>"$work/log" 2>&1 &
running=$!
started+=($running)
until_true "the program starts once more" main_window
sleep 1
keys F12
sleep 1
is_gone "$running" && fail "a write that fails ends the program"
says CONFIG.INI 'LANGUE=0' || fail "a file without write permission is written"
chmod 644 "$work/home/CONFIG.INI"
until_true "the change is written as soon as that works again" says CONFIG.INI 'LANGUE=4000'
kill "$running"

if [ "$failures" -gt 0 ]; then
  cat "$work/log"
  exit 1
fi
echo "Everything as a user expects it."
