# To be sourced: a virtual display with a window manager, for the script that reads this. start_display SIZE sets DISPLAY, and
# started holds the processes that cleanup() ends; until_true() waits.
started=()

# Waits up to 20 s until a command succeeds; what the script calls fail() with is its first word.
until_true() {
  local what="$1" i
  shift
  for ((i = 0; i < 200; ++i)); do
    "$@" >/dev/null 2>&1 && return 0
    sleep 0.1
  done
  fail "$what"
  return 1
}

needs() {
  local tool
  for tool in "$@"; do
    command -v "$tool" >/dev/null || { echo "skipped: $tool is missing"; exit 77; }
  done
}

cleanup() {
  kill "${started[@]}" 2>/dev/null
  wait 2>/dev/null
  rm -rf "$work"
}

# A window that asks to be shown before there is a manager would wait for ever.
window_manager_runs() { xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'; }

start_display() {
  work=$(mktemp -d)
  trap cleanup EXIT
  unset WAYLAND_DISPLAY QT_QPA_PLATFORM
  # The server picks a free display and tells its number.
  Xvfb -displayfd 3 -screen 0 "$1x24" 3>"$work/display" >/dev/null 2>&1 &
  started+=($!)
  until_true "the display starts" test -s "$work/display" || exit 1
  DISPLAY=":$(cat "$work/display")"
  export DISPLAY
  openbox --config-file "$(dirname "${BASH_SOURCE[0]}")/openbox.xml" >/dev/null 2>&1 &
  started+=($!)
  until_true "the window manager starts" window_manager_runs || exit 1
}
