#!/usr/bin/env bash
# Installs what is missing, builds everything under the address and undefined-behaviour sanitizers, and runs every test: core,
# windows without a display, the command line, and the real program in a window of a virtual display.
set -euo pipefail
cd "$(dirname "$0")"
packaging/install-packages.sh
[ -f build/asan/build.ninja ] || cmake --preset asan >/dev/null
cmake --build --preset asan
# Qt, fontconfig and the drivers keep memory until the end on purpose; only our own leaks count.
export LSAN_OPTIONS="suppressions=$PWD/tests/support/leaks.txt:print_suppressions=0"
export ASAN_OPTIONS="detect_stack_use_after_return=1"
export UBSAN_OPTIONS="print_stacktrace=1"
exec ctest --preset asan -j 2 "$@"
