#!/bin/sh
# Saves pictures of a few condition editors, the statistics preview and the
# recovery panel dialog into the folder given as argument, drawn by a real
# X server (xvfb) so that they look as on a desktop.
#   scripts/screenshot-editori.sh /tmp/editori
set -eu
cartella=${1:?"uso: $0 CARTELLA"}
radice=$(cd "$(dirname "$0")/.." && pwd)
build=${CF_BUILD:-$radice/build}
cmake --build "$build" --target editors_tests >/dev/null
mkdir -p "$cartella"
cartella=$(cd "$cartella" && pwd)
CF_CARTELLA_SCREENSHOT="$cartella" QT_QPA_PLATFORM=xcb \
    xvfb-run -a -s "-screen 0 1280x1024x24" \
    "$build/bin/editors_tests" --gtest_filter='Screenshot.*'
ls "$cartella"/*.png
