#!/usr/bin/env bash
# Installs what is missing, builds the program and starts it. Arguments go to the program.
set -euo pipefail
cd "$(dirname "$0")"
packaging/install-packages.sh
[ -f build/release/build.ninja ] || cmake --preset release >/dev/null
cmake --build --preset release

if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
  echo "There is no display, so no window can open. A sample game's scorecard instead:"
  echo
  sample=$(find build/release/share/hooptab/samples -name '*.GAM' | sort | head -n 1)
  exec build/release/bin/hooptab-cli box "$sample"
fi
exec build/release/bin/hooptab "$@"
