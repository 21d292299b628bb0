#!/bin/sh
# Saves pictures of the analysis tools (reduction, winnings check, ...) into
# the folder given as argument, drawn by a real X server (xvfb).
#   scripts/screenshot-strumenti.sh /tmp/strumenti
set -eu
cartella=${1:?"uso: $0 CARTELLA"}
radice=$(cd "$(dirname "$0")/.." && pwd)
build=${CF_BUILD:-$radice/build}
cmake --build "$build" --target tools_tests >/dev/null
mkdir -p "$cartella"
cartella=$(cd "$cartella" && pwd)
CF_CARTELLA_SCREENSHOT="$cartella" QT_QPA_PLATFORM=xcb \
    xvfb-run -a -s "-screen 0 1280x1024x24" \
    "$build/bin/tools_tests" --gtest_filter='Screenshot.*'
ls "$cartella"/*.png
